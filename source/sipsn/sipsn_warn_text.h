/* Texts of Warning, RFC 3261 section 20.43: the content of a quoted string. */
#ifndef SIPSN_WARN_TEXT_H
#define SIPSN_WARN_TEXT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text has neither CR nor LF; the empty text has none. Null aborts. */
PB_API bool sipsnWarnTextOk( PbString *warnText );

PB_END_DECLS
#endif
