/* SipsnHeaderReason: the Reason header field, RFC 3326 section 2; a list of reason-values.
 *
 * Example: Reason: Q.850;cause=16;text="Normal call clearing";location=LN
 *
 * Each value is kept as its text and decoded when TryDecodeReasonAt asks for it, which gives null when it is not a
 * reason-value. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_REASON_H
#define SIPSN_HEADER_REASON_H

#include "sipsn_header.h"
#include "sipsn_reason.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReason ), see sipsn_header.h */
typedef struct SipsnHeaderReason SipsnHeaderReason;

PB_API SipsnHeaderReason *sipsnHeaderReasonCreateFrom( SipsnHeaderReason *source );
PB_API SipsnHeaderReason *sipsnHeaderReasonRetain( SipsnHeaderReason *obj );
PB_API void               sipsnHeaderReasonRelease( SipsnHeaderReason *obj );
PB_API PbObj             *sipsnHeaderReasonObj( SipsnHeaderReason *obj );
PB_API SipsnHeaderReason *sipsnHeaderReasonFrom( PbObj *obj );
PB_API PbSort            *sipsnHeaderReasonSort( void );
PB_API PbString          *sipsnHeaderReasonToString( SipsnHeaderReason *obj );
PB_API int64_t            sipsnHeaderReasonCompare( SipsnHeaderReason *a, SipsnHeaderReason *b );
PB_API bool               sipsnHeaderReasonEquals( SipsnHeaderReason *a, SipsnHeaderReason *b );

PB_API SipsnHeaderReason  *sipsnHeaderReasonTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderReasonEncode( SipsnHeaderReason *hdr );
PB_API SipsnHeaderReason  *sipsnHeaderReasonTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderReasonEncodeToMessage( SipsnHeaderReason *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderReasonPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderReasonRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderReasonStore( SipsnHeaderReason *hdr );
PB_API SipsnHeaderReason  *sipsnHeaderReasonTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderReason *sipsnHeaderReasonCreate( void );

/* ./dev lists: LIST( Reasons, Reason, SipsnReason ), see sipsn_header.h */
PB_API int64_t sipsnHeaderReasonReasonsLength( SipsnHeaderReason *hdr );
PB_API void    sipsnHeaderReasonAppendReason( SipsnHeaderReason **hdr, SipsnReason *reason );
PB_API void    sipsnHeaderReasonPrependReason( SipsnHeaderReason **hdr, SipsnReason *reason );
PB_API void    sipsnHeaderReasonInsertReason( SipsnHeaderReason **hdr, int64_t index, SipsnReason *reason );
PB_API void    sipsnHeaderReasonSetReasonAt( SipsnHeaderReason **hdr, int64_t index, SipsnReason *reason );
PB_API void    sipsnHeaderReasonDelReasonAt( SipsnHeaderReason **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnReason *sipsnHeaderReasonTryDecodeReasonAt( SipsnHeaderReason *hdr, int64_t index );
PB_API void         sipsnHeaderReasonClearReasons( SipsnHeaderReason **hdr );

PB_END_DECLS
#endif
