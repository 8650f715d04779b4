/* Reason phrases of status lines, RFC 3261 sections 7.2 and 25.1: free text. The value is without escapes. */
#ifndef SIPSN_REASON_PHRASE_H
#define SIPSN_REASON_PHRASE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* True for any text, the empty one too; false for null. */
PB_API bool sipsnReasonPhraseOk( PbString *reasonPhrase );

PB_END_DECLS
#endif
