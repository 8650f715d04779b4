/* Event types, RFC 6665 section 8.4: tokens without a dot, separated by dots; kept as written. */
#ifndef SIPSN_EVENT_TYPE_H
#define SIPSN_EVENT_TYPE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an event type; the empty text is not. Null aborts. */
PB_API bool sipsnEventTypeOk( PbString *eventType );

PB_END_DECLS
#endif
