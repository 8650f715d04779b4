/* The value of Refer-Sub, RFC 4488 section 4. */
#ifndef SIPSN_REFER_SUB_H
#define SIPSN_REFER_SUB_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text is "true" or "false", in any letter case; kept in lower case. Null aborts. */
PB_API bool sipsnReferSubOk( PbString *referSub );

PB_END_DECLS
#endif
