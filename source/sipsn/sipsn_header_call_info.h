/* SipsnHeaderCallInfo: the Call-Info header field, RFC 3261 section 20.9; a list of infos.
 *
 * Example: Call-Info: <http://www.example.com/alice/photo.jpg>;purpose=icon;version=2
 *
 * Each value is kept as its text and decoded when TryDecodeCallInfoAt asks for it, which gives null when it is not an
 * info. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_CALL_INFO_H
#define SIPSN_HEADER_CALL_INFO_H

#include "sipsn_call_info.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderCallInfo ), see sipsn_header.h */
typedef struct SipsnHeaderCallInfo SipsnHeaderCallInfo;

PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoCreateFrom( SipsnHeaderCallInfo *source );
PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoRetain( SipsnHeaderCallInfo *obj );
PB_API void                 sipsnHeaderCallInfoRelease( SipsnHeaderCallInfo *obj );
PB_API PbObj               *sipsnHeaderCallInfoObj( SipsnHeaderCallInfo *obj );
PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderCallInfoSort( void );
PB_API PbString            *sipsnHeaderCallInfoToString( SipsnHeaderCallInfo *obj );
PB_API int64_t              sipsnHeaderCallInfoCompare( SipsnHeaderCallInfo *a, SipsnHeaderCallInfo *b );
PB_API bool                 sipsnHeaderCallInfoEquals( SipsnHeaderCallInfo *a, SipsnHeaderCallInfo *b );

PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderCallInfoEncode( SipsnHeaderCallInfo *hdr );
PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderCallInfoEncodeToMessage( SipsnHeaderCallInfo *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderCallInfoPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderCallInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderCallInfoStore( SipsnHeaderCallInfo *hdr );
PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderCallInfo *sipsnHeaderCallInfoCreate( void );

/* ./dev lists: LIST( CallInfos, CallInfo, SipsnCallInfo ), see sipsn_header.h */
PB_API int64_t sipsnHeaderCallInfoCallInfosLength( SipsnHeaderCallInfo *hdr );
PB_API void    sipsnHeaderCallInfoAppendCallInfo( SipsnHeaderCallInfo **hdr, SipsnCallInfo *callInfo );
PB_API void    sipsnHeaderCallInfoPrependCallInfo( SipsnHeaderCallInfo **hdr, SipsnCallInfo *callInfo );
PB_API void    sipsnHeaderCallInfoInsertCallInfo( SipsnHeaderCallInfo **hdr, int64_t index, SipsnCallInfo *callInfo );
PB_API void    sipsnHeaderCallInfoSetCallInfoAt( SipsnHeaderCallInfo **hdr, int64_t index, SipsnCallInfo *callInfo );
PB_API void    sipsnHeaderCallInfoDelCallInfoAt( SipsnHeaderCallInfo **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnCallInfo *sipsnHeaderCallInfoTryDecodeCallInfoAt( SipsnHeaderCallInfo *hdr, int64_t index );
PB_API void           sipsnHeaderCallInfoClearCallInfos( SipsnHeaderCallInfo **hdr );

PB_END_DECLS
#endif
