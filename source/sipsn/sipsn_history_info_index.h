/* Indices of History-Info, RFC 7044 section 5: numbers without leading zeros, separated by dots ("1.2.1"). They stay
 * text, so that "1.10" and "1.1" differ. */
#ifndef SIPSN_HISTORY_INFO_INDEX_H
#define SIPSN_HISTORY_INFO_INDEX_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an index; the empty text is not. Null aborts. */
PB_API bool sipsnHistoryInfoIndexOk( PbString *index );

PB_END_DECLS
#endif
