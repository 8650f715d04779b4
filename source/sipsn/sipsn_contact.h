/* SipsnContact: one contact-param of a Contact header field, RFC 3261 section 20.10. The "*" of a Contact header field
 * is none.
 *
 * Example: "Alice" <sip:10.0.0.4>;q=0.700;expires=60;rc=1;mp=2;np=3;+sip.instance="<urn:oid:1.2>";+sip.src;+sip.srs;ob
 *
 *     contact-param = ( name-addr / addr-spec ) *( SEMI param )
 *
 *     iri              the address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     generic params   every other parameter; never absent, may be empty
 *     q                preference in thousandths, 0 to 1000; -1 when absent
 *     expires          seconds, 0 or more; -1 when absent
 *     rc, mp, np       the index of the History-Info entry that the contact was retargeted from (RFC 7044); optional
 *     +sip.instance    the content between the double quotes, "<urn:...>" (RFC 5626); optional
 *     +sip.src         a flag, a session recording client (RFC 7866)
 *     +sip.srs         a flag, a session recording server (RFC 7866)
 *
 * Without angle brackets a ";" ends the address. They are always written. A decoded parameter whose value does not fit
 * its member is kept as a generic one. On the wire a member that is present takes the place of a generic parameter of
 * its name.
 *
 * Getters return a new reference, null or -1 when the member is absent. Setters and deleters replace *contact by a
 * private copy when it is shared. A null or invalid argument aborts. Values compare in the order above, but the generic
 * params last and the two flags not at all. */
#ifndef SIPSN_CONTACT_H
#define SIPSN_CONTACT_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnContact ), see pb_types.h */
typedef struct SipsnContact SipsnContact;

PB_API SipsnContact *sipsnContactCreateFrom( SipsnContact *source );
PB_API SipsnContact *sipsnContactRetain( SipsnContact *obj );
PB_API void          sipsnContactRelease( SipsnContact *obj );
PB_API PbObj        *sipsnContactObj( SipsnContact *obj );
PB_API SipsnContact *sipsnContactFrom( PbObj *obj );
PB_API PbSort       *sipsnContactSort( void );
PB_API PbString     *sipsnContactToString( SipsnContact *obj );
PB_API int64_t       sipsnContactCompare( SipsnContact *a, SipsnContact *b );
PB_API bool          sipsnContactEquals( SipsnContact *a, SipsnContact *b );
/* ./dev lists: end */

PB_API SipsnContact *sipsnContactCreate( PbString *iri );

PB_API PbString *sipsnContactIri( SipsnContact *contact );
PB_API void      sipsnContactSetIri( SipsnContact **contact, PbString *iri );

/* ./dev lists: URI( contact ), see sipsn_uri.h */
PB_API SipsnUri *sipsnContactTryDecodeUri( SipsnContact *contact );
PB_API void      sipsnContactSetUri( SipsnContact **contact, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnContactDisplayName( SipsnContact *contact );
PB_API bool      sipsnContactHasDisplayName( SipsnContact *contact );
PB_API void      sipsnContactSetDisplayName( SipsnContact **contact, PbString *displayName );
PB_API void      sipsnContactDelDisplayName( SipsnContact **contact );

PB_API SipsnGenericParams *sipsnContactGenericParams( SipsnContact *contact );
PB_API void                sipsnContactSetGenericParams( SipsnContact **contact, SipsnGenericParams *genericParams );

PB_API int64_t sipsnContactQvalue( SipsnContact *contact );
PB_API bool    sipsnContactHasQvalue( SipsnContact *contact );
PB_API void    sipsnContactSetQvalue( SipsnContact **contact, int64_t qvalue );
PB_API void    sipsnContactDelQvalue( SipsnContact **contact );

PB_API int64_t sipsnContactExpires( SipsnContact *contact );
PB_API bool    sipsnContactHasExpires( SipsnContact *contact );
PB_API void    sipsnContactSetExpires( SipsnContact **contact, int64_t deltaSeconds );
PB_API void    sipsnContactDelExpires( SipsnContact **contact );

PB_API PbString *sipsnContactRc( SipsnContact *contact );
PB_API bool      sipsnContactHasRc( SipsnContact *contact );
PB_API void      sipsnContactSetRc( SipsnContact **contact, PbString *rc );
PB_API void      sipsnContactDelRc( SipsnContact **contact );

PB_API PbString *sipsnContactMp( SipsnContact *contact );
PB_API bool      sipsnContactHasMp( SipsnContact *contact );
PB_API void      sipsnContactSetMp( SipsnContact **contact, PbString *mp );
PB_API void      sipsnContactDelMp( SipsnContact **contact );

PB_API PbString *sipsnContactNp( SipsnContact *contact );
PB_API bool      sipsnContactHasNp( SipsnContact *contact );
PB_API void      sipsnContactSetNp( SipsnContact **contact, PbString *np );
PB_API void      sipsnContactDelNp( SipsnContact **contact );

PB_API PbString *sipsnContactSipInstance( SipsnContact *contact );
PB_API bool      sipsnContactHasSipInstance( SipsnContact *contact );
PB_API void      sipsnContactSetSipInstance( SipsnContact **contact, PbString *sipInstance );
PB_API void      sipsnContactDelSipInstance( SipsnContact **contact );

PB_API bool sipsnContactSipSrc( SipsnContact *contact );
PB_API void sipsnContactSetSipSrc( SipsnContact **contact, bool sipSrc );

PB_API bool sipsnContactSipSrs( SipsnContact *contact );
PB_API void sipsnContactSetSipSrs( SipsnContact **contact, bool sipSrs );

PB_END_DECLS
#endif
