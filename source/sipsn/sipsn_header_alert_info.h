/* SipsnHeaderAlertInfo: the Alert-Info header field, RFC 3261 section 20.4; a list of alert-params.
 *
 * Example: Alert-Info: <http://www.example.com/sounds/moo.wav>;appearance=2
 *
 * Each value is kept as its text and decoded when TryDecodeAlertInfoAt asks for it, which gives null when it is no
 * alert-param. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ALERT_INFO_H
#define SIPSN_HEADER_ALERT_INFO_H

#include "sipsn_alert_info.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderAlertInfo, sipsnHeaderAlertInfo )

PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderAlertInfo, sipsnHeaderAlertInfo, AlertInfos, AlertInfo, SipsnAlertInfo, alertInfo )
PB_API SipsnAlertInfo *sipsnHeaderAlertInfoTryDecodeAlertInfoAt( SipsnHeaderAlertInfo *hdr, int64_t index );
PB_API void            sipsnHeaderAlertInfoClearAlertInfos( SipsnHeaderAlertInfo **hdr );

PB_END_DECLS
#endif
