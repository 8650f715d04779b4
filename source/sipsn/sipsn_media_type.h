/* Media types, the part before the slash, RFC 3261 section 25.1 (m-type): tokens other than "*", stored in lower case.
 */
#ifndef SIPSN_MEDIA_TYPE_H
#define SIPSN_MEDIA_TYPE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a media type; the empty text is not. Null aborts. */
PB_API bool sipsnMediaTypeOk( PbString *mediaType );

/* The media type in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * media type abort. */
PB_API PbString *sipsnMediaTypeNormalize( PbString *mediaType );

PB_END_DECLS
#endif
