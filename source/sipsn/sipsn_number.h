/* Numbers without a unit: lengths, counts and codes of several header fields. */
#ifndef SIPSN_NUMBER_H
#define SIPSN_NUMBER_H

#include "pb/pb.h"

PB_BEGIN_DECLS

/* Whether the number is 0 or more. */
PB_API bool sipsnNumberOk( int64_t number );

/* Whether a number is one of at most three digits, 0 to 999, as the error codes of RFC 6442 and RFC 8876 are. */
PB_API bool sipsnErrorCodeOk( int64_t errorCode );

/* Whether a request may still reach that many targets at once (RFC 5393 section 5.3): 1 or more. */
PB_API bool sipsnMaxBreadthOk( int64_t maxBreadth );

/* Whether a request may be the one of that number under a nonce (RFC 7616 section 3.4): 0 to 4,294,967,295. */
PB_API bool sipsnNonceCountOk( int64_t nonceCount );

PB_END_DECLS
#endif
