/* SipsnHeaderProxyAuthorization: the Proxy-Authorization header field, RFC 3261 section 20.28; a list of credentials.
 *
 * Example: Proxy-Authorization: Digest
 * username="bob",realm="atlanta.com",nonce="84f1c1ae",uri="sip:ss2.biloxi.example.com",response="dfe56131d1958046689d83306477ecc1"
 *
 * Every line holds one, and a comma belongs to it (RFC 3261 section 7.3.1). Each is kept as its text, and decoded when
 * TryDecodeCredentialAt asks for it. A header field without lines does not decode; one that holds no credential is
 * malformed. */
#ifndef SIPSN_HEADER_PROXY_AUTHORIZATION_H
#define SIPSN_HEADER_PROXY_AUTHORIZATION_H

#include "sipsn_digest_credentials.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderProxyAuthorization ), see sipsn_header.h */
typedef struct SipsnHeaderProxyAuthorization SipsnHeaderProxyAuthorization;

PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationCreateFrom( SipsnHeaderProxyAuthorization *source );
PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationRetain( SipsnHeaderProxyAuthorization *obj );
PB_API void                           sipsnHeaderProxyAuthorizationRelease( SipsnHeaderProxyAuthorization *obj );
PB_API PbObj                         *sipsnHeaderProxyAuthorizationObj( SipsnHeaderProxyAuthorization *obj );
PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderProxyAuthorizationSort( void );
PB_API PbString                      *sipsnHeaderProxyAuthorizationToString( SipsnHeaderProxyAuthorization *obj );
PB_API int64_t                        sipsnHeaderProxyAuthorizationCompare( SipsnHeaderProxyAuthorization *a,
                                                                            SipsnHeaderProxyAuthorization *b );
PB_API bool sipsnHeaderProxyAuthorizationEquals( SipsnHeaderProxyAuthorization *a, SipsnHeaderProxyAuthorization *b );

PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderProxyAuthorizationEncode( SipsnHeaderProxyAuthorization *hdr );
PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderProxyAuthorizationEncodeToMessage( SipsnHeaderProxyAuthorization *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderProxyAuthorizationPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderProxyAuthorizationRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderProxyAuthorizationStore( SipsnHeaderProxyAuthorization *hdr );
PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Credentials, Credential, SipsnDigestCredentials ), see sipsn_header.h */
PB_API int64_t sipsnHeaderProxyAuthorizationCredentialsLength( SipsnHeaderProxyAuthorization *hdr );
PB_API void    sipsnHeaderProxyAuthorizationAppendCredential( SipsnHeaderProxyAuthorization **hdr,
                                                              SipsnDigestCredentials         *digestCredentials );
PB_API void    sipsnHeaderProxyAuthorizationPrependCredential( SipsnHeaderProxyAuthorization **hdr,
                                                               SipsnDigestCredentials         *digestCredentials );
PB_API void    sipsnHeaderProxyAuthorizationInsertCredential( SipsnHeaderProxyAuthorization **hdr, int64_t index,
                                                              SipsnDigestCredentials *digestCredentials );
PB_API void    sipsnHeaderProxyAuthorizationSetCredentialAt( SipsnHeaderProxyAuthorization **hdr, int64_t index,
                                                             SipsnDigestCredentials *digestCredentials );
PB_API void    sipsnHeaderProxyAuthorizationDelCredentialAt( SipsnHeaderProxyAuthorization **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderProxyAuthorization *sipsnHeaderProxyAuthorizationCreate( void );
PB_API SipsnDigestCredentials *sipsnHeaderProxyAuthorizationTryDecodeCredentialAt( SipsnHeaderProxyAuthorization *hdr,
                                                                                   int64_t index );
PB_API void                    sipsnHeaderProxyAuthorizationClearCredentials( SipsnHeaderProxyAuthorization **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
