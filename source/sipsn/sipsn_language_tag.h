/* Language tags and ranges, RFC 3261 sections 20.3 and 20.13; with digits in subtags (RFC 5646 section 2.1). */
#ifndef SIPSN_LANGUAGE_TAG_H
#define SIPSN_LANGUAGE_TAG_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a tag such as "en-GB" or "es-419": up to eight letters, then subtags of up to eight letters
 * and digits, each behind a "-". Null aborts. */
PB_API bool sipsnLanguageTagOk( PbString *languageTag );

/* Whether the whole text is a language tag or "*". Null aborts. */
PB_API bool sipsnLanguageRangeOk( PbString *languageRange );

PB_END_DECLS
#endif
