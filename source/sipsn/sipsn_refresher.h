/* The refresher parameter of Session-Expires, RFC 4028 section 4: "uac" or "uas" in any letter case, stored in lower
 * case. */
#ifndef SIPSN_REFRESHER_H
#define SIPSN_REFRESHER_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a refresher; the empty text is not. Null aborts. */
PB_API bool sipsnRefresherOk( PbString *refresher );

/* The refresher in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * refresher abort. */
PB_API PbString *sipsnRefresherNormalize( PbString *refresher );

PB_END_DECLS
#endif
