/* SipsnHeaderErrorInfo: the Error-Info header field, RFC 3261 section 20.18; a list of error-uris.
 *
 * Example: Error-Info: <sip:not-in-service@announce.example.com>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeErrorInfoAt asks for it, which gives null when it is not an
 * error-uri. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ERROR_INFO_H
#define SIPSN_HEADER_ERROR_INFO_H

#include "sipsn_error_info.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderErrorInfo ), see sipsn_header.h */
typedef struct SipsnHeaderErrorInfo SipsnHeaderErrorInfo;

PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoCreateFrom( SipsnHeaderErrorInfo *source );
PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoRetain( SipsnHeaderErrorInfo *obj );
PB_API void                  sipsnHeaderErrorInfoRelease( SipsnHeaderErrorInfo *obj );
PB_API PbObj                *sipsnHeaderErrorInfoObj( SipsnHeaderErrorInfo *obj );
PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderErrorInfoSort( void );
PB_API PbString             *sipsnHeaderErrorInfoToString( SipsnHeaderErrorInfo *obj );
PB_API int64_t               sipsnHeaderErrorInfoCompare( SipsnHeaderErrorInfo *a, SipsnHeaderErrorInfo *b );
PB_API bool                  sipsnHeaderErrorInfoEquals( SipsnHeaderErrorInfo *a, SipsnHeaderErrorInfo *b );

PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderErrorInfoEncode( SipsnHeaderErrorInfo *hdr );
PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderErrorInfoEncodeToMessage( SipsnHeaderErrorInfo *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderErrorInfoPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderErrorInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderErrorInfoStore( SipsnHeaderErrorInfo *hdr );
PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderErrorInfo *sipsnHeaderErrorInfoCreate( void );

/* ./dev lists: LIST( ErrorInfos, ErrorInfo, SipsnErrorInfo ), see sipsn_header.h */
PB_API int64_t sipsnHeaderErrorInfoErrorInfosLength( SipsnHeaderErrorInfo *hdr );
PB_API void    sipsnHeaderErrorInfoAppendErrorInfo( SipsnHeaderErrorInfo **hdr, SipsnErrorInfo *errorInfo );
PB_API void    sipsnHeaderErrorInfoPrependErrorInfo( SipsnHeaderErrorInfo **hdr, SipsnErrorInfo *errorInfo );
PB_API void sipsnHeaderErrorInfoInsertErrorInfo( SipsnHeaderErrorInfo **hdr, int64_t index, SipsnErrorInfo *errorInfo );
PB_API void sipsnHeaderErrorInfoSetErrorInfoAt( SipsnHeaderErrorInfo **hdr, int64_t index, SipsnErrorInfo *errorInfo );
PB_API void sipsnHeaderErrorInfoDelErrorInfoAt( SipsnHeaderErrorInfo **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnErrorInfo *sipsnHeaderErrorInfoTryDecodeErrorInfoAt( SipsnHeaderErrorInfo *hdr, int64_t index );
PB_API void            sipsnHeaderErrorInfoClearErrorInfos( SipsnHeaderErrorInfo **hdr );

PB_END_DECLS
#endif
