/* SipsnDigestChallenge: one challenge of WWW-Authenticate or Proxy-Authenticate, RFC 3261 section 25.1, RFC 7616, RFC
 * 8760 and RFC 8898.
 *
 * Example: Digest
 * realm="atlanta.com",domain="sip:ss1.carrier.com",nonce="f84f1cec",opaque="5ccc",stale=true,algorithm=SHA-256,qop="auth,auth-int",scope="reg",authz_server="https://as.example.com/",error="invalid_token",charset=UTF-8
 *
 *     challenge = auth-scheme LWS auth-param *( COMMA auth-param )
 *
 *     scheme           a token such as "Digest" or "Bearer", kept as written; never absent
 *     realm, domain, nonce, opaque, qop   the contents of quoted strings; optional
 *     stale            whether the nonce alone was wrong; false by default
 *     algorithm        a token; optional, and then MD5
 *     scope, authz server, error   of the scheme Bearer, the contents of quoted strings; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * The members are those of the schemes Digest and Bearer, and are read whatever the scheme is. A scheme
 * alone is a challenge too (RFC 9110 section 11.3). */
#ifndef SIPSN_DIGEST_CHALLENGE_H
#define SIPSN_DIGEST_CHALLENGE_H

#include "sipsn_member.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnDigestChallenge ), see pb_types.h */
typedef struct SipsnDigestChallenge SipsnDigestChallenge;

PB_API SipsnDigestChallenge *sipsnDigestChallengeCreateFrom( SipsnDigestChallenge *source );
PB_API SipsnDigestChallenge *sipsnDigestChallengeRetain( SipsnDigestChallenge *obj );
PB_API void                  sipsnDigestChallengeRelease( SipsnDigestChallenge *obj );
PB_API PbObj                *sipsnDigestChallengeObj( SipsnDigestChallenge *obj );
PB_API SipsnDigestChallenge *sipsnDigestChallengeFrom( PbObj *obj );
PB_API PbSort               *sipsnDigestChallengeSort( void );
PB_API PbString             *sipsnDigestChallengeToString( SipsnDigestChallenge *obj );
PB_API int64_t               sipsnDigestChallengeCompare( SipsnDigestChallenge *a, SipsnDigestChallenge *b );
PB_API bool                  sipsnDigestChallengeEquals( SipsnDigestChallenge *a, SipsnDigestChallenge *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnDigestChallenge *sipsnDigestChallengeCreate( PbString *scheme );
PB_API SipsnDigestChallenge *sipsnDigestChallengeCreateCstr( const char *scheme, int64_t length );
PB_API SipsnDigestChallenge *sipsnDigestChallengeCreateWcstr( const wchar_t *scheme, int64_t length );

PB_API PbString *sipsnDigestChallengeScheme( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetScheme( SipsnDigestChallenge **challenge, PbString *scheme );
PB_API void sipsnDigestChallengeSetSchemeCstr( SipsnDigestChallenge **challenge, const char *scheme, int64_t length );
PB_API void sipsnDigestChallengeSetSchemeWcstr( SipsnDigestChallenge **challenge, const wchar_t *scheme,
                                                int64_t length );

PB_API PbString *sipsnDigestChallengeRealm( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasRealm( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetRealm( SipsnDigestChallenge **challenge, PbString *realm );
PB_API void sipsnDigestChallengeSetRealmCstr( SipsnDigestChallenge **challenge, const char *realm, int64_t length );
PB_API void sipsnDigestChallengeSetRealmWcstr( SipsnDigestChallenge **challenge, const wchar_t *realm, int64_t length );
PB_API void sipsnDigestChallengeDelRealm( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeDomain( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasDomain( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetDomain( SipsnDigestChallenge **challenge, PbString *domain );
PB_API void sipsnDigestChallengeSetDomainCstr( SipsnDigestChallenge **challenge, const char *domain, int64_t length );
PB_API void sipsnDigestChallengeSetDomainWcstr( SipsnDigestChallenge **challenge, const wchar_t *domain,
                                                int64_t length );
PB_API void sipsnDigestChallengeDelDomain( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeNonce( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasNonce( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetNonce( SipsnDigestChallenge **challenge, PbString *nonce );
PB_API void sipsnDigestChallengeSetNonceCstr( SipsnDigestChallenge **challenge, const char *nonce, int64_t length );
PB_API void sipsnDigestChallengeSetNonceWcstr( SipsnDigestChallenge **challenge, const wchar_t *nonce, int64_t length );
PB_API void sipsnDigestChallengeDelNonce( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeOpaque( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasOpaque( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetOpaque( SipsnDigestChallenge **challenge, PbString *opaque );
PB_API void sipsnDigestChallengeSetOpaqueCstr( SipsnDigestChallenge **challenge, const char *opaque, int64_t length );
PB_API void sipsnDigestChallengeSetOpaqueWcstr( SipsnDigestChallenge **challenge, const wchar_t *opaque,
                                                int64_t length );
PB_API void sipsnDigestChallengeDelOpaque( SipsnDigestChallenge **challenge );

PB_API bool sipsnDigestChallengeStale( SipsnDigestChallenge *challenge );
PB_API void sipsnDigestChallengeSetStale( SipsnDigestChallenge **challenge, bool stale );

PB_API PbString *sipsnDigestChallengeAlgorithm( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasAlgorithm( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetAlgorithm( SipsnDigestChallenge **challenge, PbString *algorithm );
PB_API void      sipsnDigestChallengeSetAlgorithmCstr( SipsnDigestChallenge **challenge, const char *algorithm,
                                                       int64_t length );
PB_API void      sipsnDigestChallengeSetAlgorithmWcstr( SipsnDigestChallenge **challenge, const wchar_t *algorithm,
                                                        int64_t length );
PB_API void      sipsnDigestChallengeDelAlgorithm( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeQop( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasQop( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetQop( SipsnDigestChallenge **challenge, PbString *qop );
PB_API void      sipsnDigestChallengeSetQopCstr( SipsnDigestChallenge **challenge, const char *qop, int64_t length );
PB_API void sipsnDigestChallengeSetQopWcstr( SipsnDigestChallenge **challenge, const wchar_t *qop, int64_t length );
PB_API void sipsnDigestChallengeDelQop( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeScope( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasScope( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetScope( SipsnDigestChallenge **challenge, PbString *scope );
PB_API void sipsnDigestChallengeSetScopeCstr( SipsnDigestChallenge **challenge, const char *scope, int64_t length );
PB_API void sipsnDigestChallengeSetScopeWcstr( SipsnDigestChallenge **challenge, const wchar_t *scope, int64_t length );
PB_API void sipsnDigestChallengeDelScope( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeAuthzServer( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasAuthzServer( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetAuthzServer( SipsnDigestChallenge **challenge, PbString *authzServer );
PB_API void      sipsnDigestChallengeSetAuthzServerCstr( SipsnDigestChallenge **challenge, const char *authzServer,
                                                         int64_t length );
PB_API void      sipsnDigestChallengeSetAuthzServerWcstr( SipsnDigestChallenge **challenge, const wchar_t *authzServer,
                                                          int64_t length );
PB_API void      sipsnDigestChallengeDelAuthzServer( SipsnDigestChallenge **challenge );

PB_API PbString *sipsnDigestChallengeError( SipsnDigestChallenge *challenge );
PB_API bool      sipsnDigestChallengeHasError( SipsnDigestChallenge *challenge );
PB_API void      sipsnDigestChallengeSetError( SipsnDigestChallenge **challenge, PbString *error );
PB_API void sipsnDigestChallengeSetErrorCstr( SipsnDigestChallenge **challenge, const char *error, int64_t length );
PB_API void sipsnDigestChallengeSetErrorWcstr( SipsnDigestChallenge **challenge, const wchar_t *error, int64_t length );
PB_API void sipsnDigestChallengeDelError( SipsnDigestChallenge **challenge );

PB_API SipsnGenericParams *sipsnDigestChallengeGenericParams( SipsnDigestChallenge *challenge );
PB_API void sipsnDigestChallengeSetGenericParams( SipsnDigestChallenge **challenge, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
