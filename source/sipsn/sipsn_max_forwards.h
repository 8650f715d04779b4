/* Hop limits, RFC 3261 section 20.22: 0 to 255. */
#ifndef SIPSN_MAX_FORWARDS_H
#define SIPSN_MAX_FORWARDS_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 255. */
PB_API bool sipsnMaxForwardsOk( int64_t maxForwards );

PB_END_DECLS
#endif
