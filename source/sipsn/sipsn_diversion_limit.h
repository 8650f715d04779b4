/* The limit parameter of Diversion, RFC 5806, how often a call may be diverted: as the counter, 0 to 99; -1 stands for
 * none. */
#ifndef SIPSN_DIVERSION_LIMIT_H
#define SIPSN_DIVERSION_LIMIT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 99. */
PB_API bool sipsnDiversionLimitOk( int64_t diversionLimit );

PB_END_DECLS
#endif
