/* The tag parameter of From and To, RFC 3261 sections 19.3 and 25.1: a token, kept as written. */
#ifndef SIPSN_TAG_H
#define SIPSN_TAG_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a tag; the empty text is not. Null aborts. */
PB_API bool sipsnTagOk( PbString *tag );

PB_END_DECLS
#endif
