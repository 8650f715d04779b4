/* Causes of Reason, RFC 3326 section 2: decimal digits, kept as written ("0016"). */
#ifndef SIPSN_REASON_CAUSE_H
#define SIPSN_REASON_CAUSE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is one or more digits, however many. Null aborts. */
PB_API bool sipsnReasonCauseOk( PbString *reasonCause );

PB_END_DECLS
#endif
