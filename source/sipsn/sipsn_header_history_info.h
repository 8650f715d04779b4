/* SipsnHeaderHistoryInfo: the History-Info header field, RFC 7044 section 5; a list of hi-entrys.
 *
 * Example: History-Info: "Bob" <sip:bob@192.0.2.4>;index=1.1;rc=1
 *
 * Each value is kept as its text and decoded when TryDecodeHistoryInfoAt asks for it, which gives null when it is not a
 * hi-entry. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_HISTORY_INFO_H
#define SIPSN_HEADER_HISTORY_INFO_H

#include "sipsn_header.h"
#include "sipsn_history_info.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderHistoryInfo ), see sipsn_header.h */
typedef struct SipsnHeaderHistoryInfo SipsnHeaderHistoryInfo;

PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoCreateFrom( SipsnHeaderHistoryInfo *source );
PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoRetain( SipsnHeaderHistoryInfo *obj );
PB_API void                    sipsnHeaderHistoryInfoRelease( SipsnHeaderHistoryInfo *obj );
PB_API PbObj                  *sipsnHeaderHistoryInfoObj( SipsnHeaderHistoryInfo *obj );
PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderHistoryInfoSort( void );
PB_API PbString               *sipsnHeaderHistoryInfoToString( SipsnHeaderHistoryInfo *obj );
PB_API int64_t                 sipsnHeaderHistoryInfoCompare( SipsnHeaderHistoryInfo *a, SipsnHeaderHistoryInfo *b );
PB_API bool                    sipsnHeaderHistoryInfoEquals( SipsnHeaderHistoryInfo *a, SipsnHeaderHistoryInfo *b );

PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderHistoryInfoEncode( SipsnHeaderHistoryInfo *hdr );
PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderHistoryInfoEncodeToMessage( SipsnHeaderHistoryInfo *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderHistoryInfoPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderHistoryInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderHistoryInfoStore( SipsnHeaderHistoryInfo *hdr );
PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoCreate( void );

/* ./dev lists: LIST( HistoryInfos, HistoryInfo, SipsnHistoryInfo ), see sipsn_header.h */
PB_API int64_t sipsnHeaderHistoryInfoHistoryInfosLength( SipsnHeaderHistoryInfo *hdr );
PB_API void    sipsnHeaderHistoryInfoAppendHistoryInfo( SipsnHeaderHistoryInfo **hdr, SipsnHistoryInfo *historyInfo );
PB_API void    sipsnHeaderHistoryInfoPrependHistoryInfo( SipsnHeaderHistoryInfo **hdr, SipsnHistoryInfo *historyInfo );
PB_API void    sipsnHeaderHistoryInfoInsertHistoryInfo( SipsnHeaderHistoryInfo **hdr, int64_t index,
                                                        SipsnHistoryInfo *historyInfo );
PB_API void    sipsnHeaderHistoryInfoSetHistoryInfoAt( SipsnHeaderHistoryInfo **hdr, int64_t index,
                                                       SipsnHistoryInfo *historyInfo );
PB_API void    sipsnHeaderHistoryInfoDelHistoryInfoAt( SipsnHeaderHistoryInfo **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnHistoryInfo *sipsnHeaderHistoryInfoTryDecodeHistoryInfoAt( SipsnHeaderHistoryInfo *hdr, int64_t index );
PB_API void              sipsnHeaderHistoryInfoClearHistoryInfos( SipsnHeaderHistoryInfo **hdr );

PB_END_DECLS
#endif
