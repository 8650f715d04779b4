/* SipsnHeaderHistoryInfo: the History-Info header field, RFC 7044 section 5; a list of hi-entrys.
 *
 * Example: History-Info: "Bob" <sip:bob@192.0.2.4>;index=1.1;rc=1
 *
 * Each value is kept as its text and decoded when TryDecodeHistoryInfoAt asks for it, which gives null when it is no
 * hi-entry. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_HISTORY_INFO_H
#define SIPSN_HEADER_HISTORY_INFO_H

#include "sipsn_header.h"
#include "sipsn_history_info.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderHistoryInfo, sipsnHeaderHistoryInfo )

PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderHistoryInfo, sipsnHeaderHistoryInfo, HistoryInfos, HistoryInfo, SipsnHistoryInfo,
                    historyInfo )
PB_API SipsnHistoryInfo *sipsnHeaderHistoryInfoTryDecodeHistoryInfoAt( SipsnHeaderHistoryInfo *hdr, int64_t index );
PB_API void              sipsnHeaderHistoryInfoClearHistoryInfos( SipsnHeaderHistoryInfo **hdr );

PB_END_DECLS
#endif
