/* A host, and a port behind a colon or none, RFC 3261 section 25.1 (hostport). */
#ifndef SIPSN_HOST_PORT_H
#define SIPSN_HOST_PORT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is one, in ASCII as on the wire. Null aborts. */
PB_API bool sipsnHostPortOk( PbString *hostPort );

PB_END_DECLS
#endif
