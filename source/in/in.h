/* in: IP addresses and internationalised domain names. This file includes all of it. */
#ifndef IN_H
#define IN_H

/* ./dev lists: includes */
#include "in_address.h"
#include "in_dns.h"
#include "in_module.h"
/* ./dev lists: end */

#endif
