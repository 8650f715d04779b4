/* SipsnDigestCredentials: the credentials of Authorization or Proxy-Authorization, RFC 3261 section 25.1, RFC 7616, RFC
 * 8760 and RFC 8898.
 *
 * Example: Digest
 * username="bob",realm="atlanta.com",nonce="84f1c1ae",uri="sip:ss2.biloxi.example.com",response="dfe56131d1958046689d83306477ecc1",algorithm=MD5,cnonce="0a4f113b",opaque="5ccc",qop=auth,nc=00000001,auts="CjkyMzRfOiwg5CfkJ2UK=",userhash=true
 *
 *     credentials = auth-scheme LWS ( token68 / auth-param *( COMMA auth-param ) )
 *
 *     scheme           a token such as "Digest" or "Bearer", kept as written; never absent
 *     token68          what stands for all parameters, such as a bearer token (RFC 6750); optional
 *     username, realm, nonce, uri, cnonce, opaque, auts   the contents of quoted strings; optional
 *     response         hexadecimal digits, none before any challenge; optional
 *     algorithm, qop   tokens; optional
 *     nc               how often the nonce was used, 0 to 4,294,967,295, eight hexadecimal digits on the wire; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * The members are those of the scheme Digest, and are read whatever the scheme is. As long as there is a token68, the
 * parameters are not written. A parameter without a value is malformed; a scheme alone is not. */
#ifndef SIPSN_DIGEST_CREDENTIALS_H
#define SIPSN_DIGEST_CREDENTIALS_H

#include "sipsn_digest_text.h"
#include "sipsn_member.h"
#include "sipsn_number.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnDigestCredentials ), see pb_types.h */
typedef struct SipsnDigestCredentials SipsnDigestCredentials;

PB_API SipsnDigestCredentials *sipsnDigestCredentialsCreateFrom( SipsnDigestCredentials *source );
PB_API SipsnDigestCredentials *sipsnDigestCredentialsRetain( SipsnDigestCredentials *obj );
PB_API void                    sipsnDigestCredentialsRelease( SipsnDigestCredentials *obj );
PB_API PbObj                  *sipsnDigestCredentialsObj( SipsnDigestCredentials *obj );
PB_API SipsnDigestCredentials *sipsnDigestCredentialsFrom( PbObj *obj );
PB_API PbSort                 *sipsnDigestCredentialsSort( void );
PB_API PbString               *sipsnDigestCredentialsToString( SipsnDigestCredentials *obj );
PB_API int64_t                 sipsnDigestCredentialsCompare( SipsnDigestCredentials *a, SipsnDigestCredentials *b );
PB_API bool                    sipsnDigestCredentialsEquals( SipsnDigestCredentials *a, SipsnDigestCredentials *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnDigestCredentials *sipsnDigestCredentialsCreate( PbString *scheme );
PB_API SipsnDigestCredentials *sipsnDigestCredentialsCreateCstr( const char *scheme, int64_t length );
PB_API SipsnDigestCredentials *sipsnDigestCredentialsCreateWcstr( const wchar_t *scheme, int64_t length );

PB_API PbString *sipsnDigestCredentialsScheme( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetScheme( SipsnDigestCredentials **credentials, PbString *scheme );
PB_API void      sipsnDigestCredentialsSetSchemeCstr( SipsnDigestCredentials **credentials, const char *scheme,
                                                      int64_t length );
PB_API void      sipsnDigestCredentialsSetSchemeWcstr( SipsnDigestCredentials **credentials, const wchar_t *scheme,
                                                       int64_t length );

PB_API PbString *sipsnDigestCredentialsToken68( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasToken68( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetToken68( SipsnDigestCredentials **credentials, PbString *token68 );
PB_API void      sipsnDigestCredentialsSetToken68Cstr( SipsnDigestCredentials **credentials, const char *token68,
                                                       int64_t length );
PB_API void      sipsnDigestCredentialsSetToken68Wcstr( SipsnDigestCredentials **credentials, const wchar_t *token68,
                                                        int64_t length );
PB_API void      sipsnDigestCredentialsDelToken68( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsUsername( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasUsername( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetUsername( SipsnDigestCredentials **credentials, PbString *username );
PB_API void      sipsnDigestCredentialsSetUsernameCstr( SipsnDigestCredentials **credentials, const char *username,
                                                        int64_t length );
PB_API void      sipsnDigestCredentialsSetUsernameWcstr( SipsnDigestCredentials **credentials, const wchar_t *username,
                                                         int64_t length );
PB_API void      sipsnDigestCredentialsDelUsername( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsRealm( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasRealm( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetRealm( SipsnDigestCredentials **credentials, PbString *realm );
PB_API void      sipsnDigestCredentialsSetRealmCstr( SipsnDigestCredentials **credentials, const char *realm,
                                                     int64_t length );
PB_API void      sipsnDigestCredentialsSetRealmWcstr( SipsnDigestCredentials **credentials, const wchar_t *realm,
                                                      int64_t length );
PB_API void      sipsnDigestCredentialsDelRealm( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsNonce( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasNonce( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetNonce( SipsnDigestCredentials **credentials, PbString *nonce );
PB_API void      sipsnDigestCredentialsSetNonceCstr( SipsnDigestCredentials **credentials, const char *nonce,
                                                     int64_t length );
PB_API void      sipsnDigestCredentialsSetNonceWcstr( SipsnDigestCredentials **credentials, const wchar_t *nonce,
                                                      int64_t length );
PB_API void      sipsnDigestCredentialsDelNonce( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsUri( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasUri( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetUri( SipsnDigestCredentials **credentials, PbString *uri );
PB_API void sipsnDigestCredentialsSetUriCstr( SipsnDigestCredentials **credentials, const char *uri, int64_t length );
PB_API void sipsnDigestCredentialsSetUriWcstr( SipsnDigestCredentials **credentials, const wchar_t *uri,
                                               int64_t length );
PB_API void sipsnDigestCredentialsDelUri( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsResponse( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasResponse( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetResponse( SipsnDigestCredentials **credentials, PbString *response );
PB_API void      sipsnDigestCredentialsSetResponseCstr( SipsnDigestCredentials **credentials, const char *response,
                                                        int64_t length );
PB_API void      sipsnDigestCredentialsSetResponseWcstr( SipsnDigestCredentials **credentials, const wchar_t *response,
                                                         int64_t length );
PB_API void      sipsnDigestCredentialsDelResponse( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsAlgorithm( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasAlgorithm( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetAlgorithm( SipsnDigestCredentials **credentials, PbString *algorithm );
PB_API void      sipsnDigestCredentialsSetAlgorithmCstr( SipsnDigestCredentials **credentials, const char *algorithm,
                                                         int64_t length );
PB_API void sipsnDigestCredentialsSetAlgorithmWcstr( SipsnDigestCredentials **credentials, const wchar_t *algorithm,
                                                     int64_t length );
PB_API void sipsnDigestCredentialsDelAlgorithm( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsCnonce( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasCnonce( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetCnonce( SipsnDigestCredentials **credentials, PbString *cnonce );
PB_API void      sipsnDigestCredentialsSetCnonceCstr( SipsnDigestCredentials **credentials, const char *cnonce,
                                                      int64_t length );
PB_API void      sipsnDigestCredentialsSetCnonceWcstr( SipsnDigestCredentials **credentials, const wchar_t *cnonce,
                                                       int64_t length );
PB_API void      sipsnDigestCredentialsDelCnonce( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsOpaque( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasOpaque( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetOpaque( SipsnDigestCredentials **credentials, PbString *opaque );
PB_API void      sipsnDigestCredentialsSetOpaqueCstr( SipsnDigestCredentials **credentials, const char *opaque,
                                                      int64_t length );
PB_API void      sipsnDigestCredentialsSetOpaqueWcstr( SipsnDigestCredentials **credentials, const wchar_t *opaque,
                                                       int64_t length );
PB_API void      sipsnDigestCredentialsDelOpaque( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsQop( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasQop( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetQop( SipsnDigestCredentials **credentials, PbString *qop );
PB_API void sipsnDigestCredentialsSetQopCstr( SipsnDigestCredentials **credentials, const char *qop, int64_t length );
PB_API void sipsnDigestCredentialsSetQopWcstr( SipsnDigestCredentials **credentials, const wchar_t *qop,
                                               int64_t length );
PB_API void sipsnDigestCredentialsDelQop( SipsnDigestCredentials **credentials );

PB_API int64_t sipsnDigestCredentialsNc( SipsnDigestCredentials *credentials );
PB_API bool    sipsnDigestCredentialsHasNc( SipsnDigestCredentials *credentials );
PB_API void    sipsnDigestCredentialsSetNc( SipsnDigestCredentials **credentials, int64_t nc );
PB_API void    sipsnDigestCredentialsDelNc( SipsnDigestCredentials **credentials );

PB_API PbString *sipsnDigestCredentialsAuts( SipsnDigestCredentials *credentials );
PB_API bool      sipsnDigestCredentialsHasAuts( SipsnDigestCredentials *credentials );
PB_API void      sipsnDigestCredentialsSetAuts( SipsnDigestCredentials **credentials, PbString *auts );
PB_API void sipsnDigestCredentialsSetAutsCstr( SipsnDigestCredentials **credentials, const char *auts, int64_t length );
PB_API void sipsnDigestCredentialsSetAutsWcstr( SipsnDigestCredentials **credentials, const wchar_t *auts,
                                                int64_t length );
PB_API void sipsnDigestCredentialsDelAuts( SipsnDigestCredentials **credentials );

PB_API SipsnGenericParams *sipsnDigestCredentialsGenericParams( SipsnDigestCredentials *credentials );
PB_API void                sipsnDigestCredentialsSetGenericParams( SipsnDigestCredentials **credentials,
                                                                   SipsnGenericParams      *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
