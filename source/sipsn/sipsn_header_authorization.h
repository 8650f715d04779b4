/* SipsnHeaderAuthorization: the Authorization header field, RFC 3261 section 20.7; a list of credentials.
 *
 * Example: Authorization: Digest
 * username="bob",realm="atlanta.com",nonce="84f1c1ae",uri="sip:ss2.biloxi.example.com",response="dfe56131d1958046689d83306477ecc1"
 *
 * Every line holds one, and a comma belongs to it (RFC 3261 section 7.3.1). Each is kept as its text, and decoded when
 * TryDecodeCredentialAt asks for it. A header field without lines does not decode; one that holds no credential is
 * malformed. */
#ifndef SIPSN_HEADER_AUTHORIZATION_H
#define SIPSN_HEADER_AUTHORIZATION_H

#include "sipsn_digest_credentials.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAuthorization ), see sipsn_header.h */
typedef struct SipsnHeaderAuthorization SipsnHeaderAuthorization;

PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationCreateFrom( SipsnHeaderAuthorization *source );
PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationRetain( SipsnHeaderAuthorization *obj );
PB_API void                      sipsnHeaderAuthorizationRelease( SipsnHeaderAuthorization *obj );
PB_API PbObj                    *sipsnHeaderAuthorizationObj( SipsnHeaderAuthorization *obj );
PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderAuthorizationSort( void );
PB_API PbString                 *sipsnHeaderAuthorizationToString( SipsnHeaderAuthorization *obj );
PB_API int64_t sipsnHeaderAuthorizationCompare( SipsnHeaderAuthorization *a, SipsnHeaderAuthorization *b );
PB_API bool    sipsnHeaderAuthorizationEquals( SipsnHeaderAuthorization *a, SipsnHeaderAuthorization *b );

PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderAuthorizationEncode( SipsnHeaderAuthorization *hdr );
PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAuthorizationEncodeToMessage( SipsnHeaderAuthorization *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAuthorizationPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAuthorizationRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAuthorizationStore( SipsnHeaderAuthorization *hdr );
PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Credentials, Credential, SipsnDigestCredentials ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAuthorizationCredentialsLength( SipsnHeaderAuthorization *hdr );
PB_API void    sipsnHeaderAuthorizationAppendCredential( SipsnHeaderAuthorization **hdr,
                                                         SipsnDigestCredentials    *digestCredentials );
PB_API void    sipsnHeaderAuthorizationPrependCredential( SipsnHeaderAuthorization **hdr,
                                                          SipsnDigestCredentials    *digestCredentials );
PB_API void    sipsnHeaderAuthorizationInsertCredential( SipsnHeaderAuthorization **hdr, int64_t index,
                                                         SipsnDigestCredentials *digestCredentials );
PB_API void    sipsnHeaderAuthorizationSetCredentialAt( SipsnHeaderAuthorization **hdr, int64_t index,
                                                        SipsnDigestCredentials *digestCredentials );
PB_API void    sipsnHeaderAuthorizationDelCredentialAt( SipsnHeaderAuthorization **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAuthorization *sipsnHeaderAuthorizationCreate( void );
PB_API SipsnDigestCredentials   *sipsnHeaderAuthorizationTryDecodeCredentialAt( SipsnHeaderAuthorization *hdr,
                                                                                int64_t                   index );
PB_API void                      sipsnHeaderAuthorizationClearCredentials( SipsnHeaderAuthorization **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
