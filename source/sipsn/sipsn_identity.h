/* SipsnIdentity: one signature of an Identity header field, RFC 8224 section 4.
 *
 * Example: ..rq3pjT1hoRwakEGjHCnWSwUnshd0;info=<https://cert.example.org/passport.cer>;alg=ES256;ppt=shaken;lang=en
 *
 *     signed-identity-digest SEMI "info" EQUAL LAQUOT URI RAQUOT *( SEMI ( "alg" EQUAL token / "ppt" EQUAL token /
 *         generic-param ) )
 *
 *     digest           the signature, kept as written; never absent
 *     info             where the credential is, an IRI, in angle brackets on the wire; never
 *                      absent
 *     alg              the algorithm, a token; when absent ES256; optional
 *     ppt              what is signed beyond the base, a token such as "shaken"; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * An info in quotes is read too. One without info, as RFC 4474 had it, does not decode. A decoded parameter whose
 * value does not fit its member is kept as a generic one. Values compare in the order above. */
#ifndef SIPSN_IDENTITY_H
#define SIPSN_IDENTITY_H

#include "sipsn_identity_digest.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnIdentity ), see pb_types.h */
typedef struct SipsnIdentity SipsnIdentity;

PB_API SipsnIdentity *sipsnIdentityCreateFrom( SipsnIdentity *source );
PB_API SipsnIdentity *sipsnIdentityRetain( SipsnIdentity *obj );
PB_API void           sipsnIdentityRelease( SipsnIdentity *obj );
PB_API PbObj         *sipsnIdentityObj( SipsnIdentity *obj );
PB_API SipsnIdentity *sipsnIdentityFrom( PbObj *obj );
PB_API PbSort        *sipsnIdentitySort( void );
PB_API PbString      *sipsnIdentityToString( SipsnIdentity *obj );
PB_API int64_t        sipsnIdentityCompare( SipsnIdentity *a, SipsnIdentity *b );
PB_API bool           sipsnIdentityEquals( SipsnIdentity *a, SipsnIdentity *b );
/* ./dev lists: end */

PB_API SipsnIdentity *sipsnIdentityCreate( PbString *digest, PbString *info );

/* ./dev lists: members, see sipsn_member.h */
PB_API PbString *sipsnIdentityDigest( SipsnIdentity *identity );
PB_API void      sipsnIdentitySetDigest( SipsnIdentity **identity, PbString *digest );
PB_API void      sipsnIdentitySetDigestCstr( SipsnIdentity **identity, const char *digest, int64_t length );
PB_API void      sipsnIdentitySetDigestWcstr( SipsnIdentity **identity, const wchar_t *digest, int64_t length );

PB_API PbString *sipsnIdentityInfo( SipsnIdentity *identity );
PB_API void      sipsnIdentitySetInfo( SipsnIdentity **identity, PbString *info );
PB_API void      sipsnIdentitySetInfoCstr( SipsnIdentity **identity, const char *info, int64_t length );
PB_API void      sipsnIdentitySetInfoWcstr( SipsnIdentity **identity, const wchar_t *info, int64_t length );

PB_API PbString *sipsnIdentityAlg( SipsnIdentity *identity );
PB_API bool      sipsnIdentityHasAlg( SipsnIdentity *identity );
PB_API void      sipsnIdentitySetAlg( SipsnIdentity **identity, PbString *alg );
PB_API void      sipsnIdentitySetAlgCstr( SipsnIdentity **identity, const char *alg, int64_t length );
PB_API void      sipsnIdentitySetAlgWcstr( SipsnIdentity **identity, const wchar_t *alg, int64_t length );
PB_API void      sipsnIdentityDelAlg( SipsnIdentity **identity );

PB_API PbString *sipsnIdentityPpt( SipsnIdentity *identity );
PB_API bool      sipsnIdentityHasPpt( SipsnIdentity *identity );
PB_API void      sipsnIdentitySetPpt( SipsnIdentity **identity, PbString *ppt );
PB_API void      sipsnIdentitySetPptCstr( SipsnIdentity **identity, const char *ppt, int64_t length );
PB_API void      sipsnIdentitySetPptWcstr( SipsnIdentity **identity, const wchar_t *ppt, int64_t length );
PB_API void      sipsnIdentityDelPpt( SipsnIdentity **identity );

PB_API SipsnGenericParams *sipsnIdentityGenericParams( SipsnIdentity *identity );
PB_API void                sipsnIdentitySetGenericParams( SipsnIdentity **identity, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
