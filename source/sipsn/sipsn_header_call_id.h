/* SipsnHeaderCallId: the Call-ID header field, RFC 3261 section 20.8; one Call-ID.
 *
 * Example: Call-Id: f81d4fae-7dec-11d0@example.com
 *
 *     callid = word [ "@" word ]
 *
 *     call id   kept as written; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * SetCallId replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_CALL_ID_H
#define SIPSN_HEADER_CALL_ID_H

#include "sipsn_call_id.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderCallId ), see sipsn_header.h */
typedef struct SipsnHeaderCallId SipsnHeaderCallId;

PB_API SipsnHeaderCallId *sipsnHeaderCallIdCreateFrom( SipsnHeaderCallId *source );
PB_API SipsnHeaderCallId *sipsnHeaderCallIdRetain( SipsnHeaderCallId *obj );
PB_API void               sipsnHeaderCallIdRelease( SipsnHeaderCallId *obj );
PB_API PbObj             *sipsnHeaderCallIdObj( SipsnHeaderCallId *obj );
PB_API SipsnHeaderCallId *sipsnHeaderCallIdFrom( PbObj *obj );
PB_API PbSort            *sipsnHeaderCallIdSort( void );
PB_API PbString          *sipsnHeaderCallIdToString( SipsnHeaderCallId *obj );
PB_API int64_t            sipsnHeaderCallIdCompare( SipsnHeaderCallId *a, SipsnHeaderCallId *b );
PB_API bool               sipsnHeaderCallIdEquals( SipsnHeaderCallId *a, SipsnHeaderCallId *b );

PB_API SipsnHeaderCallId  *sipsnHeaderCallIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderCallIdEncode( SipsnHeaderCallId *hdr );
PB_API SipsnHeaderCallId  *sipsnHeaderCallIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderCallIdEncodeToMessage( SipsnHeaderCallId *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderCallIdPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderCallIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderCallIdStore( SipsnHeaderCallId *hdr );
PB_API SipsnHeaderCallId  *sipsnHeaderCallIdTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderCallId *sipsnHeaderCallIdCreate( PbString *callId );

PB_API PbString *sipsnHeaderCallIdCallId( SipsnHeaderCallId *hdr );
PB_API void      sipsnHeaderCallIdSetCallId( SipsnHeaderCallId **hdr, PbString *callId );

PB_END_DECLS
#endif
