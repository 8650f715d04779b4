/* SipsnHeaderWwwAuthenticate: the WWW-Authenticate header field, RFC 3261 section 20.44; a list of challenges.
 *
 * Example: Www-Authenticate: Digest realm="atlanta.com",nonce="84f1c1ae",stale=true,algorithm=MD5,qop="auth"
 *
 * Every line holds one, and a comma belongs to it (RFC 3261 section 7.3.1). Each is kept as its text, and decoded when
 * TryDecodeChallengeAt asks for it. A header field without lines does not decode; one that holds no challenge is
 * malformed. */
#ifndef SIPSN_HEADER_WWW_AUTHENTICATE_H
#define SIPSN_HEADER_WWW_AUTHENTICATE_H

#include "sipsn_digest_challenge.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderWwwAuthenticate ), see sipsn_header.h */
typedef struct SipsnHeaderWwwAuthenticate SipsnHeaderWwwAuthenticate;

PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateCreateFrom( SipsnHeaderWwwAuthenticate *source );
PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateRetain( SipsnHeaderWwwAuthenticate *obj );
PB_API void                        sipsnHeaderWwwAuthenticateRelease( SipsnHeaderWwwAuthenticate *obj );
PB_API PbObj                      *sipsnHeaderWwwAuthenticateObj( SipsnHeaderWwwAuthenticate *obj );
PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderWwwAuthenticateSort( void );
PB_API PbString                   *sipsnHeaderWwwAuthenticateToString( SipsnHeaderWwwAuthenticate *obj );
PB_API int64_t sipsnHeaderWwwAuthenticateCompare( SipsnHeaderWwwAuthenticate *a, SipsnHeaderWwwAuthenticate *b );
PB_API bool    sipsnHeaderWwwAuthenticateEquals( SipsnHeaderWwwAuthenticate *a, SipsnHeaderWwwAuthenticate *b );

PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderWwwAuthenticateEncode( SipsnHeaderWwwAuthenticate *hdr );
PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderWwwAuthenticateEncodeToMessage( SipsnHeaderWwwAuthenticate *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderWwwAuthenticatePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderWwwAuthenticateRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderWwwAuthenticateStore( SipsnHeaderWwwAuthenticate *hdr );
PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Challenges, Challenge, SipsnDigestChallenge ), see sipsn_header.h */
PB_API int64_t sipsnHeaderWwwAuthenticateChallengesLength( SipsnHeaderWwwAuthenticate *hdr );
PB_API void    sipsnHeaderWwwAuthenticateAppendChallenge( SipsnHeaderWwwAuthenticate **hdr,
                                                          SipsnDigestChallenge        *digestChallenge );
PB_API void    sipsnHeaderWwwAuthenticatePrependChallenge( SipsnHeaderWwwAuthenticate **hdr,
                                                           SipsnDigestChallenge        *digestChallenge );
PB_API void    sipsnHeaderWwwAuthenticateInsertChallenge( SipsnHeaderWwwAuthenticate **hdr, int64_t index,
                                                          SipsnDigestChallenge *digestChallenge );
PB_API void    sipsnHeaderWwwAuthenticateSetChallengeAt( SipsnHeaderWwwAuthenticate **hdr, int64_t index,
                                                         SipsnDigestChallenge *digestChallenge );
PB_API void    sipsnHeaderWwwAuthenticateDelChallengeAt( SipsnHeaderWwwAuthenticate **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderWwwAuthenticate *sipsnHeaderWwwAuthenticateCreate( void );
PB_API SipsnDigestChallenge       *sipsnHeaderWwwAuthenticateTryDecodeChallengeAt( SipsnHeaderWwwAuthenticate *hdr,
                                                                                   int64_t                     index );
PB_API void                        sipsnHeaderWwwAuthenticateClearChallenges( SipsnHeaderWwwAuthenticate **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
