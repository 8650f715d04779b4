/* Values of the Priority header field, RFC 3261 section 20.26: tokens, stored in lower case. */
#ifndef SIPSN_PRIORITY_VALUE_H
#define SIPSN_PRIORITY_VALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a priority value; the empty text is not. Null aborts. */
PB_API bool sipsnPriorityValueOk( PbString *priorityValue );

/* The priority value in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * priority value abort. */
PB_API PbString *sipsnPriorityValueNormalize( PbString *priorityValue );

PB_END_DECLS
#endif
