/* Values of the Resource-Priority header fields, RFC 4412 section 3: namespace "." priority, kept as written. */
#ifndef SIPSN_RVALUE_H
#define SIPSN_RVALUE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a r-value; the empty text is not. Null aborts. */
PB_API bool sipsnRvalueOk( PbString *rvalue );

PB_END_DECLS
#endif
