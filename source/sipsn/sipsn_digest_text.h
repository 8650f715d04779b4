/* The texts of challenges and credentials that are not any quoted string, RFC 3261 section 25.1, RFC 7616 and RFC 8760.
 */
#ifndef SIPSN_DIGEST_TEXT_H
#define SIPSN_DIGEST_TEXT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text is of hexadecimal digits, in either case and as many as the algorithm gives: a response, which is
 * empty before any challenge (RFC 8760 section 2.7). Null aborts. */
PB_API bool sipsnDigestResponseOk( PbString *response );

/* Whether the text is the 32 hexadecimal digits of a d-ver (RFC 3329 section 2.2). Null aborts. */
PB_API bool sipsnDigestVerifyOk( PbString *digestVerify );

/* Whether the text is credentials without parameters, such as a bearer token (RFC 6750 section 2.1, b64token): letters,
 * digits and "-._~+/", then any number of "=". Null aborts. */
PB_API bool sipsnToken68Ok( PbString *token68 );

PB_END_DECLS
#endif
