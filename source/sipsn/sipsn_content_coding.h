/* Content codings, RFC 3261 section 20.12: tokens, stored in lower case. */
#ifndef SIPSN_CONTENT_CODING_H
#define SIPSN_CONTENT_CODING_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a content coding; the empty text is not. Null aborts. */
PB_API bool sipsnContentCodingOk( PbString *contentCoding );

/* The content coding in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * content coding abort. */
PB_API PbString *sipsnContentCodingNormalize( PbString *contentCoding );

PB_END_DECLS
#endif
