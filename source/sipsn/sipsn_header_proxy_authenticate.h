/* SipsnHeaderProxyAuthenticate: the Proxy-Authenticate header field, RFC 3261 section 20.27; a list of challenges.
 *
 * Example: Proxy-Authenticate: Digest realm="atlanta.com",nonce="84f1c1ae",stale=true,algorithm=MD5,qop="auth"
 *
 * Every line holds one, and a comma belongs to it (RFC 3261 section 7.3.1). Each is kept as its text, and decoded when
 * TryDecodeChallengeAt asks for it. A header field without lines does not decode; one that holds no challenge is
 * malformed. */
#ifndef SIPSN_HEADER_PROXY_AUTHENTICATE_H
#define SIPSN_HEADER_PROXY_AUTHENTICATE_H

#include "sipsn_digest_challenge.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderProxyAuthenticate ), see sipsn_header.h */
typedef struct SipsnHeaderProxyAuthenticate SipsnHeaderProxyAuthenticate;

PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateCreateFrom( SipsnHeaderProxyAuthenticate *source );
PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateRetain( SipsnHeaderProxyAuthenticate *obj );
PB_API void                          sipsnHeaderProxyAuthenticateRelease( SipsnHeaderProxyAuthenticate *obj );
PB_API PbObj                        *sipsnHeaderProxyAuthenticateObj( SipsnHeaderProxyAuthenticate *obj );
PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateFrom( PbObj *obj );
PB_API PbSort                       *sipsnHeaderProxyAuthenticateSort( void );
PB_API PbString                     *sipsnHeaderProxyAuthenticateToString( SipsnHeaderProxyAuthenticate *obj );
PB_API int64_t sipsnHeaderProxyAuthenticateCompare( SipsnHeaderProxyAuthenticate *a, SipsnHeaderProxyAuthenticate *b );
PB_API bool    sipsnHeaderProxyAuthenticateEquals( SipsnHeaderProxyAuthenticate *a, SipsnHeaderProxyAuthenticate *b );

PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader           *sipsnHeaderProxyAuthenticateEncode( SipsnHeaderProxyAuthenticate *hdr );
PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderProxyAuthenticateEncodeToMessage( SipsnHeaderProxyAuthenticate *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderProxyAuthenticatePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderProxyAuthenticateRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderProxyAuthenticateStore( SipsnHeaderProxyAuthenticate *hdr );
PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Challenges, Challenge, SipsnDigestChallenge ), see sipsn_header.h */
PB_API int64_t sipsnHeaderProxyAuthenticateChallengesLength( SipsnHeaderProxyAuthenticate *hdr );
PB_API void    sipsnHeaderProxyAuthenticateAppendChallenge( SipsnHeaderProxyAuthenticate **hdr,
                                                            SipsnDigestChallenge          *digestChallenge );
PB_API void    sipsnHeaderProxyAuthenticatePrependChallenge( SipsnHeaderProxyAuthenticate **hdr,
                                                             SipsnDigestChallenge          *digestChallenge );
PB_API void    sipsnHeaderProxyAuthenticateInsertChallenge( SipsnHeaderProxyAuthenticate **hdr, int64_t index,
                                                            SipsnDigestChallenge *digestChallenge );
PB_API void    sipsnHeaderProxyAuthenticateSetChallengeAt( SipsnHeaderProxyAuthenticate **hdr, int64_t index,
                                                           SipsnDigestChallenge *digestChallenge );
PB_API void    sipsnHeaderProxyAuthenticateDelChallengeAt( SipsnHeaderProxyAuthenticate **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderProxyAuthenticate *sipsnHeaderProxyAuthenticateCreate( void );
PB_API SipsnDigestChallenge *sipsnHeaderProxyAuthenticateTryDecodeChallengeAt( SipsnHeaderProxyAuthenticate *hdr,
                                                                               int64_t                       index );
PB_API void                  sipsnHeaderProxyAuthenticateClearChallenges( SipsnHeaderProxyAuthenticate **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
