/* Texts of Reason, RFC 3326 section 2: the content of a quoted string. */
#ifndef SIPSN_REASON_TEXT_H
#define SIPSN_REASON_TEXT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text has neither CR nor LF; the empty text has none. Null aborts. */
PB_API bool sipsnReasonTextOk( PbString *reasonText );

PB_END_DECLS
#endif
