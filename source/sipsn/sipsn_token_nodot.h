/* Tokens without a dot, RFC 6665 section 8.4: the parts of event types. Letter case does not count, so they are stored
 * in lower case. */
#ifndef SIPSN_TOKEN_NODOT_H
#define SIPSN_TOKEN_NODOT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a token without a dot; the empty text is not. Null aborts. */
PB_API bool sipsnTokenNodotOk( PbString *tokenNodot );

/* The token without a dot in lower case, as a new reference; the same object when it is so already. Null and what is
 * not a token without a dot abort. */
PB_API PbString *sipsnTokenNodotNormalize( PbString *tokenNodot );

PB_END_DECLS
#endif
