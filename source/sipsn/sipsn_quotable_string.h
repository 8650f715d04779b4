/* Free text that is written as a quoted string, RFC 3261 section 25.1 (quoted-string). The value is the content,
 * without quotes and escapes. */
#ifndef SIPSN_QUOTABLE_STRING_H
#define SIPSN_QUOTABLE_STRING_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text has neither CR nor LF; the empty text has none. Null aborts. */
PB_API bool sipsnQuotableStringOk( PbString *quotableString );

PB_END_DECLS
#endif
