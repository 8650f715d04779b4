/* Disposition types, RFC 3261 section 20.11: tokens, stored in lower case. */
#ifndef SIPSN_DISPOSITION_TYPE_H
#define SIPSN_DISPOSITION_TYPE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a disposition type; the empty text is not. Null aborts. */
PB_API bool sipsnDispositionTypeOk( PbString *dispositionType );

/* The disposition type in lower case, as a new reference; the same object when it is so already. Null and what is not
 * a disposition type abort. */
PB_API PbString *sipsnDispositionTypeNormalize( PbString *dispositionType );

PB_END_DECLS
#endif
