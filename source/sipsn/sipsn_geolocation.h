/* SipsnGeolocation: one location of a Geolocation header field, RFC 6442 section 4.1 and RFC 8787 section 4.
 *
 * Example: <cid:target123@atlanta.example.com>;loc-src=edge.example.com;lang=en
 *
 *     locationValue = LAQUOT URI RAQUOT *( SEMI ( "loc-src" EQUAL host / generic-param ) )
 *
 *     iri              an address, an IRI (a URI on the wire), always in angle brackets; never
 *                      absent
 *     loc src          the host that added it; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_GEOLOCATION_H
#define SIPSN_GEOLOCATION_H

#include "sipsn_host.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnGeolocation ), see pb_types.h */
typedef struct SipsnGeolocation SipsnGeolocation;

PB_API SipsnGeolocation *sipsnGeolocationCreateFrom( SipsnGeolocation *source );
PB_API SipsnGeolocation *sipsnGeolocationRetain( SipsnGeolocation *obj );
PB_API void              sipsnGeolocationRelease( SipsnGeolocation *obj );
PB_API PbObj            *sipsnGeolocationObj( SipsnGeolocation *obj );
PB_API SipsnGeolocation *sipsnGeolocationFrom( PbObj *obj );
PB_API PbSort           *sipsnGeolocationSort( void );
PB_API PbString         *sipsnGeolocationToString( SipsnGeolocation *obj );
PB_API int64_t           sipsnGeolocationCompare( SipsnGeolocation *a, SipsnGeolocation *b );
PB_API bool              sipsnGeolocationEquals( SipsnGeolocation *a, SipsnGeolocation *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnGeolocation *sipsnGeolocationCreate( PbString *iri );
PB_API SipsnGeolocation *sipsnGeolocationCreateCstr( const char *iri, int64_t length );
PB_API SipsnGeolocation *sipsnGeolocationCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnGeolocationIri( SipsnGeolocation *location );
PB_API void      sipsnGeolocationSetIri( SipsnGeolocation **location, PbString *iri );
PB_API void      sipsnGeolocationSetIriCstr( SipsnGeolocation **location, const char *iri, int64_t length );
PB_API void      sipsnGeolocationSetIriWcstr( SipsnGeolocation **location, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnGeolocationLocSrc( SipsnGeolocation *location );
PB_API bool      sipsnGeolocationHasLocSrc( SipsnGeolocation *location );
PB_API void      sipsnGeolocationSetLocSrc( SipsnGeolocation **location, PbString *locSrc );
PB_API void      sipsnGeolocationSetLocSrcCstr( SipsnGeolocation **location, const char *locSrc, int64_t length );
PB_API void      sipsnGeolocationSetLocSrcWcstr( SipsnGeolocation **location, const wchar_t *locSrc, int64_t length );
PB_API void      sipsnGeolocationDelLocSrc( SipsnGeolocation **location );

PB_API SipsnGenericParams *sipsnGeolocationGenericParams( SipsnGeolocation *location );
PB_API void sipsnGeolocationSetGenericParams( SipsnGeolocation **location, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( location ), see sipsn_uri.h */
PB_API SipsnUri *sipsnGeolocationTryDecodeUri( SipsnGeolocation *location );
PB_API void      sipsnGeolocationSetUri( SipsnGeolocation **location, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
