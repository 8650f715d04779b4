/* Q-values, RFC 3261 section 25.1: preferences in thousandths, 0 to 1000; -1 stands for none. */
#ifndef SIPSN_QVALUE_H
#define SIPSN_QVALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 1000. */
PB_API bool sipsnQvalueOk( int64_t qvalue );

PB_END_DECLS
#endif
