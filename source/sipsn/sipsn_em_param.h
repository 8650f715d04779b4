/* Values of the P-Early-Media header field, RFC 5009 section 8: tokens, kept as written. */
#ifndef SIPSN_EM_PARAM_H
#define SIPSN_EM_PARAM_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an em-param; the empty text is not. Null aborts. */
PB_API bool sipsnEmParamOk( PbString *emParam );

PB_END_DECLS
#endif
