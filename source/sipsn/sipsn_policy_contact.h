/* SipsnPolicyContact: one policy server of Policy-Contact, RFC 6794 section 4.4.5.
 *
 * Example: <sip:policy@biloxi.example.com>;non-cacheable;alt-uri=b.example.com;lang=en
 *
 *     policyContact-info = LAQUOT URI RAQUOT *( SEMI ( "non-cacheable" / "alt-uri" EQUAL host / generic-param ) )
 *
 *     iri              an address, an IRI (a URI on the wire), always in angle brackets; never
 *                      absent
 *     non cacheable    whether it is not to be remembered; false by default
 *     alt uri          a host that speaks for it; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_POLICY_CONTACT_H
#define SIPSN_POLICY_CONTACT_H

#include "sipsn_host.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnPolicyContact ), see pb_types.h */
typedef struct SipsnPolicyContact SipsnPolicyContact;

PB_API SipsnPolicyContact *sipsnPolicyContactCreateFrom( SipsnPolicyContact *source );
PB_API SipsnPolicyContact *sipsnPolicyContactRetain( SipsnPolicyContact *obj );
PB_API void                sipsnPolicyContactRelease( SipsnPolicyContact *obj );
PB_API PbObj              *sipsnPolicyContactObj( SipsnPolicyContact *obj );
PB_API SipsnPolicyContact *sipsnPolicyContactFrom( PbObj *obj );
PB_API PbSort             *sipsnPolicyContactSort( void );
PB_API PbString           *sipsnPolicyContactToString( SipsnPolicyContact *obj );
PB_API int64_t             sipsnPolicyContactCompare( SipsnPolicyContact *a, SipsnPolicyContact *b );
PB_API bool                sipsnPolicyContactEquals( SipsnPolicyContact *a, SipsnPolicyContact *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnPolicyContact *sipsnPolicyContactCreate( PbString *iri );
PB_API SipsnPolicyContact *sipsnPolicyContactCreateCstr( const char *iri, int64_t length );
PB_API SipsnPolicyContact *sipsnPolicyContactCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnPolicyContactIri( SipsnPolicyContact *contact );
PB_API void      sipsnPolicyContactSetIri( SipsnPolicyContact **contact, PbString *iri );
PB_API void      sipsnPolicyContactSetIriCstr( SipsnPolicyContact **contact, const char *iri, int64_t length );
PB_API void      sipsnPolicyContactSetIriWcstr( SipsnPolicyContact **contact, const wchar_t *iri, int64_t length );

PB_API bool sipsnPolicyContactNonCacheable( SipsnPolicyContact *contact );
PB_API void sipsnPolicyContactSetNonCacheable( SipsnPolicyContact **contact, bool nonCacheable );

PB_API PbString *sipsnPolicyContactAltUri( SipsnPolicyContact *contact );
PB_API bool      sipsnPolicyContactHasAltUri( SipsnPolicyContact *contact );
PB_API void      sipsnPolicyContactSetAltUri( SipsnPolicyContact **contact, PbString *altUri );
PB_API void      sipsnPolicyContactSetAltUriCstr( SipsnPolicyContact **contact, const char *altUri, int64_t length );
PB_API void sipsnPolicyContactSetAltUriWcstr( SipsnPolicyContact **contact, const wchar_t *altUri, int64_t length );
PB_API void sipsnPolicyContactDelAltUri( SipsnPolicyContact **contact );

PB_API SipsnGenericParams *sipsnPolicyContactGenericParams( SipsnPolicyContact *contact );
PB_API void sipsnPolicyContactSetGenericParams( SipsnPolicyContact **contact, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( contact ), see sipsn_uri.h */
PB_API SipsnUri *sipsnPolicyContactTryDecodeUri( SipsnPolicyContact *contact );
PB_API void      sipsnPolicyContactSetUri( SipsnPolicyContact **contact, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
