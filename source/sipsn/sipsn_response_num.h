/* Sequence numbers of provisional responses, RFC 3262 section 7.1: 1 to 4294967295, which is 2**32 - 1. */
#ifndef SIPSN_RESPONSE_NUM_H
#define SIPSN_RESPONSE_NUM_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 1 to 4294967295. */
PB_API bool sipsnResponseNumOk( int64_t responseNum );

/* Whether the number after this one is valid too. What is not a response number aborts. */
PB_API bool sipsnResponseNumIncrementOk( int64_t responseNum );

PB_END_DECLS
#endif
