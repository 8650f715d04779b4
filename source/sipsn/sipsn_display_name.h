/* Display names, RFC 3261 sections 20.10 and 25.1: free text. The value is the content, without quotes and escapes. */
#ifndef SIPSN_DISPLAY_NAME_H
#define SIPSN_DISPLAY_NAME_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text has neither CR nor LF; the empty text has none. Null aborts. */
PB_API bool sipsnDisplayNameOk( PbString *displayName );

PB_END_DECLS
#endif
