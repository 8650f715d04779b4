/* Sequence numbers of requests, RFC 3261 section 8.1.1.5: 0 to 2147483647, which is 2**31 - 1. */
#ifndef SIPSN_CSEQ_H
#define SIPSN_CSEQ_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 2147483647. */
PB_API bool sipsnCseqOk( int64_t cseq );

/* Whether the number after this one is valid too. What is not a sequence number aborts. */
PB_API bool sipsnCseqIncrementOk( int64_t cseq );

/* Whether fewer than 100 increments are left, so that numbering had better begin anew. What is not a sequence number
 * aborts. */
PB_API bool sipsnCseqScarce( int64_t cseq );

PB_END_DECLS
#endif
