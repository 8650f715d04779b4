/* The purpose parameter of Call-Info, RFC 3261 section 20.9: a token, stored in lower case. */
#ifndef SIPSN_PURPOSE_H
#define SIPSN_PURPOSE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a purpose; the empty text is not. Null aborts. */
PB_API bool sipsnPurposeOk( PbString *purpose );

/* The purpose in lower case, as a new reference; the same object when it is so already. Null and what is not a purpose
 * abort. */
PB_API PbString *sipsnPurposeNormalize( PbString *purpose );

PB_END_DECLS
#endif
