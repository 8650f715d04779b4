/* The identifiers of Content-ID, RFC 8262 section 3.2. */
#ifndef SIPSN_CONTENT_ID_H
#define SIPSN_CONTENT_ID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text is one: what stands between "<" and ">", a dot-atom, "@", and a dot-atom or a literal in brackets
 * (RFC 5322 section 3.6.4). Null aborts. */
PB_API bool sipsnContentIdOk( PbString *contentId );

PB_END_DECLS
#endif
