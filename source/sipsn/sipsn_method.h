/* Methods, RFC 3261 section 7.1: tokens whose letter case counts, so there is no normal form. */
#ifndef SIPSN_METHOD_H
#define SIPSN_METHOD_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a method; the empty text is not. Null aborts. */
PB_API bool sipsnMethodOk( PbString *method );

PB_END_DECLS
#endif
