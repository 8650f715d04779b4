/* Ports, RFC 3261 section 25.1: integers from 0 up; -1 stands for none. How high a port may be is for its user to say.
 */
#ifndef SIPSN_PORT_H
#define SIPSN_PORT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 or above. */
PB_API bool sipsnPortOk( int64_t port );

PB_END_DECLS
#endif
