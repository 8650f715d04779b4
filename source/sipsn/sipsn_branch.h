/* The branch parameter of Via, RFC 3261 sections 8.1.1.7 and 25.1: a token, kept as written. */
#ifndef SIPSN_BRANCH_H
#define SIPSN_BRANCH_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a branch; the empty text is not. Null aborts. */
PB_API bool sipsnBranchOk( PbString *branch );

PB_END_DECLS
#endif
