/* The handling parameter of Content-Disposition, RFC 3261 section 20.11: a token, stored in lower case. */
#ifndef SIPSN_HANDLING_H
#define SIPSN_HANDLING_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a handling; the empty text is not. Null aborts. */
PB_API bool sipsnHandlingOk( PbString *handling );

/* The handling in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * handling abort. */
PB_API PbString *sipsnHandlingNormalize( PbString *handling );

PB_END_DECLS
#endif
