/* Values of the Privacy header field, RFC 3323 section 4.2: tokens, stored in lower case. */
#ifndef SIPSN_PRIV_VALUE_H
#define SIPSN_PRIV_VALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a priv-value; the empty text is not. Null aborts. */
PB_API bool sipsnPrivValueOk( PbString *privValue );

/* The priv-value in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * priv-value abort. */
PB_API PbString *sipsnPrivValueNormalize( PbString *privValue );

PB_END_DECLS
#endif
