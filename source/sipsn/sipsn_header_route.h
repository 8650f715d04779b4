/* SipsnHeaderRoute: the Route header field, RFC 3261 section 20.34; a list of route-params.
 *
 * Example: Route: "Edge" <sip:edge.example.com;lr>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeRouteAt asks for it, which gives null when it is not a
 * route-param. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ROUTE_H
#define SIPSN_HEADER_ROUTE_H

#include "sipsn_header.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRoute ), see sipsn_header.h */
typedef struct SipsnHeaderRoute SipsnHeaderRoute;

PB_API SipsnHeaderRoute *sipsnHeaderRouteCreateFrom( SipsnHeaderRoute *source );
PB_API SipsnHeaderRoute *sipsnHeaderRouteRetain( SipsnHeaderRoute *obj );
PB_API void              sipsnHeaderRouteRelease( SipsnHeaderRoute *obj );
PB_API PbObj            *sipsnHeaderRouteObj( SipsnHeaderRoute *obj );
PB_API SipsnHeaderRoute *sipsnHeaderRouteFrom( PbObj *obj );
PB_API PbSort           *sipsnHeaderRouteSort( void );
PB_API PbString         *sipsnHeaderRouteToString( SipsnHeaderRoute *obj );
PB_API int64_t           sipsnHeaderRouteCompare( SipsnHeaderRoute *a, SipsnHeaderRoute *b );
PB_API bool              sipsnHeaderRouteEquals( SipsnHeaderRoute *a, SipsnHeaderRoute *b );

PB_API SipsnHeaderRoute   *sipsnHeaderRouteTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderRouteEncode( SipsnHeaderRoute *hdr );
PB_API SipsnHeaderRoute   *sipsnHeaderRouteTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRouteEncodeToMessage( SipsnHeaderRoute *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderRoutePresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRouteRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderRouteStore( SipsnHeaderRoute *hdr );
PB_API SipsnHeaderRoute   *sipsnHeaderRouteTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRoute *sipsnHeaderRouteCreate( void );

/* ./dev lists: LIST( Routes, Route, SipsnRoute ), see sipsn_header.h */
PB_API int64_t sipsnHeaderRouteRoutesLength( SipsnHeaderRoute *hdr );
PB_API void    sipsnHeaderRouteAppendRoute( SipsnHeaderRoute **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderRoutePrependRoute( SipsnHeaderRoute **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderRouteInsertRoute( SipsnHeaderRoute **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderRouteSetRouteAt( SipsnHeaderRoute **hdr, int64_t index, SipsnRoute *route );
PB_API void    sipsnHeaderRouteDelRouteAt( SipsnHeaderRoute **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnRoute *sipsnHeaderRouteTryDecodeRouteAt( SipsnHeaderRoute *hdr, int64_t index );
PB_API void        sipsnHeaderRouteClearRoutes( SipsnHeaderRoute **hdr );

PB_END_DECLS
#endif
