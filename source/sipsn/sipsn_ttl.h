/* The ttl parameter of Via, RFC 3261 section 25.1: 0 to 255; -1 stands for none. */
#ifndef SIPSN_TTL_H
#define SIPSN_TTL_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 255. */
PB_API bool sipsnTtlOk( int64_t ttl );

PB_END_DECLS
#endif
