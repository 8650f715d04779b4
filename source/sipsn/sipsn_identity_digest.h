/* The signatures of Identity, RFC 8224 section 4. */
#ifndef SIPSN_IDENTITY_DIGEST_H
#define SIPSN_IDENTITY_DIGEST_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is letters, digits and "/+-_.", of base64 in either alphabet and the dots of a PASSporT.
 * Null aborts. */
PB_API bool sipsnIdentityDigestOk( PbString *identityDigest );

PB_END_DECLS
#endif
