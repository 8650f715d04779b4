/* SipsnRoute: one route-param of a Route, Record-Route or Service-Route header field, RFC 3261 sections 20.30
 * and 20.34, RFC 3608.
 *
 * Example: "Edge" <sip:edge.example.com;lr>;lang=en
 *
 *     route-param = name-addr *( SEMI generic-param )
 *
 *     iri              the address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     generic params   the parameters behind the angle brackets; never absent, may be empty
 *
 * The ";lr" of "<sip:host;lr>" belongs to the address. Decoding also takes an address without angle brackets, which a
 * ";" ends; they are always written.
 *
 * Getters return a new reference, or null when the member is absent. Setters and deleters replace *route by a private
 * copy when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_ROUTE_H
#define SIPSN_ROUTE_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnRoute ), see pb_types.h */
typedef struct SipsnRoute SipsnRoute;

PB_API SipsnRoute *sipsnRouteCreateFrom( SipsnRoute *source );
PB_API SipsnRoute *sipsnRouteRetain( SipsnRoute *obj );
PB_API void        sipsnRouteRelease( SipsnRoute *obj );
PB_API PbObj      *sipsnRouteObj( SipsnRoute *obj );
PB_API SipsnRoute *sipsnRouteFrom( PbObj *obj );
PB_API PbSort     *sipsnRouteSort( void );
PB_API PbString   *sipsnRouteToString( SipsnRoute *obj );
PB_API int64_t     sipsnRouteCompare( SipsnRoute *a, SipsnRoute *b );
PB_API bool        sipsnRouteEquals( SipsnRoute *a, SipsnRoute *b );
/* ./dev lists: end */

PB_API SipsnRoute *sipsnRouteCreate( PbString *iri );

PB_API PbString *sipsnRouteIri( SipsnRoute *route );
PB_API void      sipsnRouteSetIri( SipsnRoute **route, PbString *iri );

/* ./dev lists: URI( route ), see sipsn_uri.h */
PB_API SipsnUri *sipsnRouteTryDecodeUri( SipsnRoute *route );
PB_API void      sipsnRouteSetUri( SipsnRoute **route, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnRouteDisplayName( SipsnRoute *route );
PB_API bool      sipsnRouteHasDisplayName( SipsnRoute *route );
PB_API void      sipsnRouteSetDisplayName( SipsnRoute **route, PbString *displayName );
PB_API void      sipsnRouteDelDisplayName( SipsnRoute **route );

PB_API SipsnGenericParams *sipsnRouteGenericParams( SipsnRoute *route );
PB_API void                sipsnRouteSetGenericParams( SipsnRoute **route, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
