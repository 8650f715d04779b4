/* Tokens, RFC 3261 section 25.1: one or more letters, digits and - . ! % * _ + ` ' ~. Letter case does not count, so
 * they are stored in lower case. */
#ifndef SIPSN_TOKEN_H
#define SIPSN_TOKEN_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a token; the empty text is not. Null aborts. */
PB_API bool sipsnTokenOk( PbString *token );

/* The token in lower case, as a new reference; the same object when it is so already. Null and what is not a token
 * abort. */
PB_API PbString *sipsnTokenNormalize( PbString *token );

PB_END_DECLS
#endif
