/* Spans of time, RFC 3261 section 25.1 (delta-seconds): seconds from 0 up; -1 stands for none. */
#ifndef SIPSN_DELTA_SECONDS_H
#define SIPSN_DELTA_SECONDS_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 or above. */
PB_API bool sipsnDeltaSecondsOk( int64_t deltaSeconds );

PB_END_DECLS
#endif
