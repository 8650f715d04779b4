/* SipsnPolicyId: one policy of Policy-ID, RFC 6794 section 4.4.5.
 *
 * Example: sip:policy@biloxi.example.com;token=af8s7;lang=en
 *
 *     policyURI = URI *( SEMI ( "token" EQUAL token / generic-param ) )
 *
 *     iri              an IRI (a URI on the wire) without angle brackets; never absent
 *     token            a token of the policy server, kept as written; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * An IRI that holds ";", "?" or "," cannot stand here: what follows the first of them is not its own. SetUri aborts for
 * one. A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_POLICY_ID_H
#define SIPSN_POLICY_ID_H

#include "sipsn_bare_iri.h"
#include "sipsn_member.h"
#include "sipsn_token.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnPolicyId ), see pb_types.h */
typedef struct SipsnPolicyId SipsnPolicyId;

PB_API SipsnPolicyId *sipsnPolicyIdCreateFrom( SipsnPolicyId *source );
PB_API SipsnPolicyId *sipsnPolicyIdRetain( SipsnPolicyId *obj );
PB_API void           sipsnPolicyIdRelease( SipsnPolicyId *obj );
PB_API PbObj         *sipsnPolicyIdObj( SipsnPolicyId *obj );
PB_API SipsnPolicyId *sipsnPolicyIdFrom( PbObj *obj );
PB_API PbSort        *sipsnPolicyIdSort( void );
PB_API PbString      *sipsnPolicyIdToString( SipsnPolicyId *obj );
PB_API int64_t        sipsnPolicyIdCompare( SipsnPolicyId *a, SipsnPolicyId *b );
PB_API bool           sipsnPolicyIdEquals( SipsnPolicyId *a, SipsnPolicyId *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnPolicyId *sipsnPolicyIdCreate( PbString *iri );
PB_API SipsnPolicyId *sipsnPolicyIdCreateCstr( const char *iri, int64_t length );
PB_API SipsnPolicyId *sipsnPolicyIdCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnPolicyIdIri( SipsnPolicyId *id );
PB_API void      sipsnPolicyIdSetIri( SipsnPolicyId **id, PbString *iri );
PB_API void      sipsnPolicyIdSetIriCstr( SipsnPolicyId **id, const char *iri, int64_t length );
PB_API void      sipsnPolicyIdSetIriWcstr( SipsnPolicyId **id, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnPolicyIdToken( SipsnPolicyId *id );
PB_API bool      sipsnPolicyIdHasToken( SipsnPolicyId *id );
PB_API void      sipsnPolicyIdSetToken( SipsnPolicyId **id, PbString *token );
PB_API void      sipsnPolicyIdSetTokenCstr( SipsnPolicyId **id, const char *token, int64_t length );
PB_API void      sipsnPolicyIdSetTokenWcstr( SipsnPolicyId **id, const wchar_t *token, int64_t length );
PB_API void      sipsnPolicyIdDelToken( SipsnPolicyId **id );

PB_API SipsnGenericParams *sipsnPolicyIdGenericParams( SipsnPolicyId *id );
PB_API void                sipsnPolicyIdSetGenericParams( SipsnPolicyId **id, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( id ), see sipsn_uri.h */
PB_API SipsnUri *sipsnPolicyIdTryDecodeUri( SipsnPolicyId *id );
PB_API void      sipsnPolicyIdSetUri( SipsnPolicyId **id, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
