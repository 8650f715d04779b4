/* Hosts, RFC 3261 section 25.1: host names, IPv4 addresses, and IPv6 addresses in square brackets. Host names may be
 * in Unicode (RFC 5891); on the wire they are ASCII. */
#ifndef SIPSN_HOST_H
#define SIPSN_HOST_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a host, as it is or in its ASCII form; the empty text is not. Null aborts. */
PB_API bool sipsnHostOk( PbString *host );

PB_END_DECLS
#endif
