/* SipsnSecurityMechanism: one sec-mechanism of Security-Client, Security-Server or Security-Verify, RFC 3329
 * section 2.2 and appendix A.
 *
 * Example:
 * ipsec-3gpp;q=0.100;d-alg=md5;d-qop=auth;d-ver="0123456789abcdef0123456789abcdef";alg=hmac-sha-1-96
 *
 *     sec-mechanism = token *( SEMI ( "q" EQUAL qvalue / "d-alg" EQUAL token / "d-qop" EQUAL token /
 *                     "d-ver" EQUAL DQUOTE 32LHEX DQUOTE / generic-param ) )
 *
 *     name             a token such as "tls", kept as written; never absent
 *     q                preference, 0 to 1000 thousandths; optional
 *     digest alg       the algorithm of the mechanism "digest", a token; optional
 *     digest qop       its quality of protection, a token; optional
 *     digest verify    32 hexadecimal digits; optional
 *     generic params   every other parameter, those of ipsec-3gpp among them; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Mechanisms compare in the order
 * above. */
#ifndef SIPSN_SECURITY_MECHANISM_H
#define SIPSN_SECURITY_MECHANISM_H

#include "sipsn_digest_text.h"
#include "sipsn_member.h"
#include "sipsn_qvalue.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnSecurityMechanism ), see pb_types.h */
typedef struct SipsnSecurityMechanism SipsnSecurityMechanism;

PB_API SipsnSecurityMechanism *sipsnSecurityMechanismCreateFrom( SipsnSecurityMechanism *source );
PB_API SipsnSecurityMechanism *sipsnSecurityMechanismRetain( SipsnSecurityMechanism *obj );
PB_API void                    sipsnSecurityMechanismRelease( SipsnSecurityMechanism *obj );
PB_API PbObj                  *sipsnSecurityMechanismObj( SipsnSecurityMechanism *obj );
PB_API SipsnSecurityMechanism *sipsnSecurityMechanismFrom( PbObj *obj );
PB_API PbSort                 *sipsnSecurityMechanismSort( void );
PB_API PbString               *sipsnSecurityMechanismToString( SipsnSecurityMechanism *obj );
PB_API int64_t                 sipsnSecurityMechanismCompare( SipsnSecurityMechanism *a, SipsnSecurityMechanism *b );
PB_API bool                    sipsnSecurityMechanismEquals( SipsnSecurityMechanism *a, SipsnSecurityMechanism *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnSecurityMechanism *sipsnSecurityMechanismCreate( PbString *name );
PB_API SipsnSecurityMechanism *sipsnSecurityMechanismCreateCstr( const char *name, int64_t length );
PB_API SipsnSecurityMechanism *sipsnSecurityMechanismCreateWcstr( const wchar_t *name, int64_t length );

PB_API PbString *sipsnSecurityMechanismName( SipsnSecurityMechanism *mechanism );
PB_API void      sipsnSecurityMechanismSetName( SipsnSecurityMechanism **mechanism, PbString *name );
PB_API void sipsnSecurityMechanismSetNameCstr( SipsnSecurityMechanism **mechanism, const char *name, int64_t length );
PB_API void sipsnSecurityMechanismSetNameWcstr( SipsnSecurityMechanism **mechanism, const wchar_t *name,
                                                int64_t length );

PB_API int64_t sipsnSecurityMechanismQvalue( SipsnSecurityMechanism *mechanism );
PB_API bool    sipsnSecurityMechanismHasQvalue( SipsnSecurityMechanism *mechanism );
PB_API void    sipsnSecurityMechanismSetQvalue( SipsnSecurityMechanism **mechanism, int64_t qvalue );
PB_API void    sipsnSecurityMechanismDelQvalue( SipsnSecurityMechanism **mechanism );

PB_API PbString *sipsnSecurityMechanismDigestAlg( SipsnSecurityMechanism *mechanism );
PB_API bool      sipsnSecurityMechanismHasDigestAlg( SipsnSecurityMechanism *mechanism );
PB_API void      sipsnSecurityMechanismSetDigestAlg( SipsnSecurityMechanism **mechanism, PbString *digestAlg );
PB_API void      sipsnSecurityMechanismSetDigestAlgCstr( SipsnSecurityMechanism **mechanism, const char *digestAlg,
                                                         int64_t length );
PB_API void      sipsnSecurityMechanismSetDigestAlgWcstr( SipsnSecurityMechanism **mechanism, const wchar_t *digestAlg,
                                                          int64_t length );
PB_API void      sipsnSecurityMechanismDelDigestAlg( SipsnSecurityMechanism **mechanism );

PB_API PbString *sipsnSecurityMechanismDigestQop( SipsnSecurityMechanism *mechanism );
PB_API bool      sipsnSecurityMechanismHasDigestQop( SipsnSecurityMechanism *mechanism );
PB_API void      sipsnSecurityMechanismSetDigestQop( SipsnSecurityMechanism **mechanism, PbString *digestQop );
PB_API void      sipsnSecurityMechanismSetDigestQopCstr( SipsnSecurityMechanism **mechanism, const char *digestQop,
                                                         int64_t length );
PB_API void      sipsnSecurityMechanismSetDigestQopWcstr( SipsnSecurityMechanism **mechanism, const wchar_t *digestQop,
                                                          int64_t length );
PB_API void      sipsnSecurityMechanismDelDigestQop( SipsnSecurityMechanism **mechanism );

PB_API PbString *sipsnSecurityMechanismDigestVerify( SipsnSecurityMechanism *mechanism );
PB_API bool      sipsnSecurityMechanismHasDigestVerify( SipsnSecurityMechanism *mechanism );
PB_API void      sipsnSecurityMechanismSetDigestVerify( SipsnSecurityMechanism **mechanism, PbString *digestVerify );
PB_API void sipsnSecurityMechanismSetDigestVerifyCstr( SipsnSecurityMechanism **mechanism, const char *digestVerify,
                                                       int64_t length );
PB_API void sipsnSecurityMechanismSetDigestVerifyWcstr( SipsnSecurityMechanism **mechanism, const wchar_t *digestVerify,
                                                        int64_t length );
PB_API void sipsnSecurityMechanismDelDigestVerify( SipsnSecurityMechanism **mechanism );

PB_API SipsnGenericParams *sipsnSecurityMechanismGenericParams( SipsnSecurityMechanism *mechanism );
PB_API void                sipsnSecurityMechanismSetGenericParams( SipsnSecurityMechanism **mechanism,
                                                                   SipsnGenericParams      *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
