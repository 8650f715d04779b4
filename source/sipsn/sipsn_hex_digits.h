/* Hexadecimal digits of opaque values, RFC 3313 section 5.1 and RFC 5503. */
#ifndef SIPSN_HEX_DIGITS_H
#define SIPSN_HEX_DIGITS_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is one or more hexadecimal digits, in either case. Null aborts. */
PB_API bool sipsnHexDigitsOk( PbString *hexDigits );

/* Whether it is 1 to 48 of them (RFC 5503 section 7.1). Null aborts. */
PB_API bool sipsnCorrelationIdOk( PbString *correlationId );

/* Whether it is 1 to 16 of them (RFC 5503 section 7.1). Null aborts. */
PB_API bool sipsnElementIdOk( PbString *elementId );

/* Whether it is 1 to 8 of them (RFC 5503 section 8.1). Null aborts. */
PB_API bool sipsnContentConnectionIdOk( PbString *contentConnectionId );

PB_END_DECLS
#endif
