/* SipsnHeaderInReplyTo: the In-Reply-To header field, RFC 3261 section 20.21; a set of Call-IDs.
 *
 * Example: In-Reply-To: 17320@sip.example.com,70710@sip.example.com
 *
 * Call-IDs are kept as written, and Call-IDs in different letter case are different. All are encoded into one line. A
 * header field without lines does not decode. */
#ifndef SIPSN_HEADER_IN_REPLY_TO_H
#define SIPSN_HEADER_IN_REPLY_TO_H

#include "sipsn_call_id.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderInReplyTo ), see sipsn_header.h */
typedef struct SipsnHeaderInReplyTo SipsnHeaderInReplyTo;

PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToCreateFrom( SipsnHeaderInReplyTo *source );
PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToRetain( SipsnHeaderInReplyTo *obj );
PB_API void                  sipsnHeaderInReplyToRelease( SipsnHeaderInReplyTo *obj );
PB_API PbObj                *sipsnHeaderInReplyToObj( SipsnHeaderInReplyTo *obj );
PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderInReplyToSort( void );
PB_API PbString             *sipsnHeaderInReplyToToString( SipsnHeaderInReplyTo *obj );
PB_API int64_t               sipsnHeaderInReplyToCompare( SipsnHeaderInReplyTo *a, SipsnHeaderInReplyTo *b );
PB_API bool                  sipsnHeaderInReplyToEquals( SipsnHeaderInReplyTo *a, SipsnHeaderInReplyTo *b );

PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderInReplyToEncode( SipsnHeaderInReplyTo *hdr );
PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderInReplyToEncodeToMessage( SipsnHeaderInReplyTo *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderInReplyToPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderInReplyToRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderInReplyToStore( SipsnHeaderInReplyTo *hdr );
PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderInReplyTo *sipsnHeaderInReplyToCreate( void );

/* ./dev lists: SET( CallIds, CallId ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderInReplyToCallIdsLength( SipsnHeaderInReplyTo *hdr );
PB_API PbString *sipsnHeaderInReplyToCallIdAt( SipsnHeaderInReplyTo *hdr, int64_t index );
PB_API PbVector *sipsnHeaderInReplyToCallIdsVector( SipsnHeaderInReplyTo *hdr );
PB_API void      sipsnHeaderInReplyToSetCallIdsVector( SipsnHeaderInReplyTo **hdr, PbVector *vec );
PB_API bool      sipsnHeaderInReplyToHasCallId( SipsnHeaderInReplyTo *hdr, PbString *callId );
PB_API void      sipsnHeaderInReplyToSetCallId( SipsnHeaderInReplyTo **hdr, PbString *callId );
PB_API void      sipsnHeaderInReplyToDelCallId( SipsnHeaderInReplyTo **hdr, PbString *callId );
PB_API void      sipsnHeaderInReplyToClearCallIds( SipsnHeaderInReplyTo **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
