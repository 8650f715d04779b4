/* Values of the Timestamp header field, RFC 3261 section 20.38: seconds and an optional delay, both as text and kept
 * as written. */
#ifndef SIPSN_TIMESTAMP_VALUE_H
#define SIPSN_TIMESTAMP_VALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a timestamp value; the empty text is not. Null aborts. */
PB_API bool sipsnTimestampValueOk( PbString *timestampValue );

PB_END_DECLS
#endif
