/* SipsnTriggerConsent: one relay of Trigger-Consent, RFC 5360 section 5.11.2.
 *
 * Example: sip:123@relay.example.com;target-uri="sip:friends@relay.example.com";lang=en
 *
 *     trigger-cons-spec = URI *( SEMI ( "target-uri" EQUAL DQUOTE URI DQUOTE / generic-param ) )
 *
 *     iri              an IRI (a URI on the wire) without angle brackets; never absent
 *     target uri       whom consent is asked of, an IRI, quoted on the wire; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * An IRI that holds ";", "?" or "," cannot stand here: what follows the first of them is not its own. SetUri aborts for
 * one. A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_TRIGGER_CONSENT_H
#define SIPSN_TRIGGER_CONSENT_H

#include "sipsn_bare_iri.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnTriggerConsent ), see pb_types.h */
typedef struct SipsnTriggerConsent SipsnTriggerConsent;

PB_API SipsnTriggerConsent *sipsnTriggerConsentCreateFrom( SipsnTriggerConsent *source );
PB_API SipsnTriggerConsent *sipsnTriggerConsentRetain( SipsnTriggerConsent *obj );
PB_API void                 sipsnTriggerConsentRelease( SipsnTriggerConsent *obj );
PB_API PbObj               *sipsnTriggerConsentObj( SipsnTriggerConsent *obj );
PB_API SipsnTriggerConsent *sipsnTriggerConsentFrom( PbObj *obj );
PB_API PbSort              *sipsnTriggerConsentSort( void );
PB_API PbString            *sipsnTriggerConsentToString( SipsnTriggerConsent *obj );
PB_API int64_t              sipsnTriggerConsentCompare( SipsnTriggerConsent *a, SipsnTriggerConsent *b );
PB_API bool                 sipsnTriggerConsentEquals( SipsnTriggerConsent *a, SipsnTriggerConsent *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnTriggerConsent *sipsnTriggerConsentCreate( PbString *iri );
PB_API SipsnTriggerConsent *sipsnTriggerConsentCreateCstr( const char *iri, int64_t length );
PB_API SipsnTriggerConsent *sipsnTriggerConsentCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnTriggerConsentIri( SipsnTriggerConsent *trigger );
PB_API void      sipsnTriggerConsentSetIri( SipsnTriggerConsent **trigger, PbString *iri );
PB_API void      sipsnTriggerConsentSetIriCstr( SipsnTriggerConsent **trigger, const char *iri, int64_t length );
PB_API void      sipsnTriggerConsentSetIriWcstr( SipsnTriggerConsent **trigger, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnTriggerConsentTargetUri( SipsnTriggerConsent *trigger );
PB_API bool      sipsnTriggerConsentHasTargetUri( SipsnTriggerConsent *trigger );
PB_API void      sipsnTriggerConsentSetTargetUri( SipsnTriggerConsent **trigger, PbString *targetUri );
PB_API void sipsnTriggerConsentSetTargetUriCstr( SipsnTriggerConsent **trigger, const char *targetUri, int64_t length );
PB_API void sipsnTriggerConsentSetTargetUriWcstr( SipsnTriggerConsent **trigger, const wchar_t *targetUri,
                                                  int64_t length );
PB_API void sipsnTriggerConsentDelTargetUri( SipsnTriggerConsent **trigger );

PB_API SipsnGenericParams *sipsnTriggerConsentGenericParams( SipsnTriggerConsent *trigger );
PB_API void sipsnTriggerConsentSetGenericParams( SipsnTriggerConsent **trigger, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( trigger ), see sipsn_uri.h */
PB_API SipsnUri *sipsnTriggerConsentTryDecodeUri( SipsnTriggerConsent *trigger );
PB_API void      sipsnTriggerConsentSetUri( SipsnTriggerConsent **trigger, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
