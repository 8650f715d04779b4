/* SipsnHeaderErrorInfo: the Error-Info header field, RFC 3261 section 20.18; a list of error-uris.
 *
 * Example: Error-Info: <sip:not-in-service@announce.example.com>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeErrorInfoAt asks for it, which gives null when it is no
 * error-uri. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ERROR_INFO_H
#define SIPSN_HEADER_ERROR_INFO_H

#include "sipsn_error_info.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderErrorInfo, sipsnHeaderErrorInfo )

PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderErrorInfo, sipsnHeaderErrorInfo, ErrorInfos, ErrorInfo, SipsnErrorInfo, errorInfo )
PB_API SipsnErrorInfo *sipsnHeaderErrorInfoTryDecodeErrorInfoAt( SipsnHeaderErrorInfo *hdr, int64_t index );
PB_API void            sipsnHeaderErrorInfoClearErrorInfos( SipsnHeaderErrorInfo **hdr );

PB_END_DECLS
#endif
