/* Call-IDs, RFC 3261 sections 20.8 and 25.1: word [ "@" word ], kept as written. */
#ifndef SIPSN_CALL_ID_H
#define SIPSN_CALL_ID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a Call-ID; the empty text is not. Null aborts. */
PB_API bool sipsnCallIdOk( PbString *callId );

PB_END_DECLS
#endif
