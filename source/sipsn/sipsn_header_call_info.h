/* SipsnHeaderCallInfo: the Call-Info header field, RFC 3261 section 20.9; a list of infos.
 *
 * Example: Call-Info: <http://www.example.com/alice/photo.jpg>;purpose=icon;version=2
 *
 * Each value is kept as its text and decoded when TryDecodeCallInfoAt asks for it, which gives null when it is no info.
 * A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_CALL_INFO_H
#define SIPSN_HEADER_CALL_INFO_H

#include "sipsn_call_info.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderCallInfo, sipsnHeaderCallInfo )

PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderCallInfo, sipsnHeaderCallInfo, CallInfos, CallInfo, SipsnCallInfo, callInfo )
PB_API SipsnCallInfo *sipsnHeaderCallInfoTryDecodeCallInfoAt( SipsnHeaderCallInfo *hdr, int64_t index );
PB_API void           sipsnHeaderCallInfoClearCallInfos( SipsnHeaderCallInfo **hdr );

PB_END_DECLS
#endif
