/* Option tags, RFC 3261 section 19.2: tokens, stored in lower case. */
#ifndef SIPSN_OPTION_TAG_H
#define SIPSN_OPTION_TAG_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an option tag; the empty text is not. Null aborts. */
PB_API bool sipsnOptionTagOk( PbString *optionTag );

/* The option tag in lower case, as a new reference; the same object when it is so already. Null and what is not an
 * option tag abort. */
PB_API PbString *sipsnOptionTagNormalize( PbString *optionTag );

PB_END_DECLS
#endif
