/* Media subtypes, the part after the slash, RFC 3261 section 25.1 (m-subtype): tokens other than "*", stored in lower
 * case. */
#ifndef SIPSN_MEDIA_SUBTYPE_H
#define SIPSN_MEDIA_SUBTYPE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a media subtype; the empty text is not. Null aborts. */
PB_API bool sipsnMediaSubtypeOk( PbString *mediaSubtype );

/* The media subtype in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * media subtype abort. */
PB_API PbString *sipsnMediaSubtypeNormalize( PbString *mediaSubtype );

PB_END_DECLS
#endif
