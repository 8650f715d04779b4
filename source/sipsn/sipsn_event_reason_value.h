/* The reason parameter of Subscription-State, RFC 6665 section 8.4: a token, stored in lower case. */
#ifndef SIPSN_EVENT_REASON_VALUE_H
#define SIPSN_EVENT_REASON_VALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an event reason value; the empty text is not. Null aborts. */
PB_API bool sipsnEventReasonValueOk( PbString *eventReasonValue );

/* The event reason value in lower case, as a new reference; the same object when it is so already. Null and what is
 * not an event reason value abort. */
PB_API PbString *sipsnEventReasonValueNormalize( PbString *eventReasonValue );

PB_END_DECLS
#endif
