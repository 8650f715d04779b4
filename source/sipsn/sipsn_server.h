/* Values of the Server header field, RFC 3261 section 20.35: products and comments, kept as written. */
#ifndef SIPSN_SERVER_H
#define SIPSN_SERVER_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a server text; the empty text is not. Null aborts. */
PB_API bool sipsnServerOk( PbString *server );

PB_END_DECLS
#endif
