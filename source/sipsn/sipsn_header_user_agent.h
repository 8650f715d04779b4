/* SipsnHeaderUserAgent: the User-Agent header field, RFC 3261 section 20.41; what software sent a request.
 *
 * Example: User-Agent: Softphone/1.5 (Linux)
 *
 *     User-Agent = server-val *( LWS server-val )
 *
 *     user agent   products and comments, kept as written; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * The setter replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_USER_AGENT_H
#define SIPSN_HEADER_USER_AGENT_H

#include "sipsn_header.h"
#include "sipsn_user_agent.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderUserAgent ), see sipsn_header.h */
typedef struct SipsnHeaderUserAgent SipsnHeaderUserAgent;

PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentCreateFrom( SipsnHeaderUserAgent *source );
PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentRetain( SipsnHeaderUserAgent *obj );
PB_API void                  sipsnHeaderUserAgentRelease( SipsnHeaderUserAgent *obj );
PB_API PbObj                *sipsnHeaderUserAgentObj( SipsnHeaderUserAgent *obj );
PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderUserAgentSort( void );
PB_API PbString             *sipsnHeaderUserAgentToString( SipsnHeaderUserAgent *obj );
PB_API int64_t               sipsnHeaderUserAgentCompare( SipsnHeaderUserAgent *a, SipsnHeaderUserAgent *b );
PB_API bool                  sipsnHeaderUserAgentEquals( SipsnHeaderUserAgent *a, SipsnHeaderUserAgent *b );

PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderUserAgentEncode( SipsnHeaderUserAgent *hdr );
PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderUserAgentEncodeToMessage( SipsnHeaderUserAgent *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderUserAgentPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderUserAgentRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderUserAgentStore( SipsnHeaderUserAgent *hdr );
PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderUserAgent *sipsnHeaderUserAgentCreate( PbString *userAgent );

PB_API PbString *sipsnHeaderUserAgentUserAgent( SipsnHeaderUserAgent *hdr );
PB_API void      sipsnHeaderUserAgentSetUserAgent( SipsnHeaderUserAgent **hdr, PbString *userAgent );

PB_END_DECLS
#endif
