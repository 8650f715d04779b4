/* Values of the User-Agent header field, RFC 3261 section 20.41: products and comments, kept as written. */
#ifndef SIPSN_USER_AGENT_H
#define SIPSN_USER_AGENT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a user-agent text; the empty text is not. Null aborts. */
PB_API bool sipsnUserAgentOk( PbString *userAgent );

PB_END_DECLS
#endif
