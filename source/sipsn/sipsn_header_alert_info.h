/* SipsnHeaderAlertInfo: the Alert-Info header field, RFC 3261 section 20.4; a list of alert-params.
 *
 * Example: Alert-Info: <http://www.example.com/sounds/moo.wav>;appearance=2
 *
 * Each value is kept as its text and decoded when TryDecodeAlertInfoAt asks for it, which gives null when it is not an
 * alert-param. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ALERT_INFO_H
#define SIPSN_HEADER_ALERT_INFO_H

#include "sipsn_alert_info.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAlertInfo ), see sipsn_header.h */
typedef struct SipsnHeaderAlertInfo SipsnHeaderAlertInfo;

PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoCreateFrom( SipsnHeaderAlertInfo *source );
PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoRetain( SipsnHeaderAlertInfo *obj );
PB_API void                  sipsnHeaderAlertInfoRelease( SipsnHeaderAlertInfo *obj );
PB_API PbObj                *sipsnHeaderAlertInfoObj( SipsnHeaderAlertInfo *obj );
PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderAlertInfoSort( void );
PB_API PbString             *sipsnHeaderAlertInfoToString( SipsnHeaderAlertInfo *obj );
PB_API int64_t               sipsnHeaderAlertInfoCompare( SipsnHeaderAlertInfo *a, SipsnHeaderAlertInfo *b );
PB_API bool                  sipsnHeaderAlertInfoEquals( SipsnHeaderAlertInfo *a, SipsnHeaderAlertInfo *b );

PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderAlertInfoEncode( SipsnHeaderAlertInfo *hdr );
PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderAlertInfoEncodeToMessage( SipsnHeaderAlertInfo *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderAlertInfoPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderAlertInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderAlertInfoStore( SipsnHeaderAlertInfo *hdr );
PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderAlertInfo *sipsnHeaderAlertInfoCreate( void );

/* ./dev lists: LIST( AlertInfos, AlertInfo, SipsnAlertInfo ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAlertInfoAlertInfosLength( SipsnHeaderAlertInfo *hdr );
PB_API void    sipsnHeaderAlertInfoAppendAlertInfo( SipsnHeaderAlertInfo **hdr, SipsnAlertInfo *alertInfo );
PB_API void    sipsnHeaderAlertInfoPrependAlertInfo( SipsnHeaderAlertInfo **hdr, SipsnAlertInfo *alertInfo );
PB_API void sipsnHeaderAlertInfoInsertAlertInfo( SipsnHeaderAlertInfo **hdr, int64_t index, SipsnAlertInfo *alertInfo );
PB_API void sipsnHeaderAlertInfoSetAlertInfoAt( SipsnHeaderAlertInfo **hdr, int64_t index, SipsnAlertInfo *alertInfo );
PB_API void sipsnHeaderAlertInfoDelAlertInfoAt( SipsnHeaderAlertInfo **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnAlertInfo *sipsnHeaderAlertInfoTryDecodeAlertInfoAt( SipsnHeaderAlertInfo *hdr, int64_t index );
PB_API void            sipsnHeaderAlertInfoClearAlertInfos( SipsnHeaderAlertInfo **hdr );

PB_END_DECLS
#endif
