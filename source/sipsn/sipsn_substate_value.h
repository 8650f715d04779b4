/* Values of the Subscription-State header field, RFC 6665 section 8.4: tokens, stored in lower case. */
#ifndef SIPSN_SUBSTATE_VALUE_H
#define SIPSN_SUBSTATE_VALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a substate value; the empty text is not. Null aborts. */
PB_API bool sipsnSubstateValueOk( PbString *substateValue );

/* The substate value in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * substate value abort. */
PB_API PbString *sipsnSubstateValueNormalize( PbString *substateValue );

PB_END_DECLS
#endif
