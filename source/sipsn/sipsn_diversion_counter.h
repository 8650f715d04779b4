/* The counter parameter of Diversion, RFC 5806, how often a call has been diverted: 0 to 99; -1 stands for none. */
#ifndef SIPSN_DIVERSION_COUNTER_H
#define SIPSN_DIVERSION_COUNTER_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 99. */
PB_API bool sipsnDiversionCounterOk( int64_t diversionCounter );

PB_END_DECLS
#endif
