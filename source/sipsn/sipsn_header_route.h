/* SipsnHeaderRoute: the Route header field, RFC 3261 section 20.34; a list of route-params.
 *
 * Example: Route: "Edge" <sip:edge.example.com;lr>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeRouteAt asks for it, which gives null when it is no
 * route-param. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ROUTE_H
#define SIPSN_HEADER_ROUTE_H

#include "sipsn_header.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderRoute, sipsnHeaderRoute )

PB_API SipsnHeaderRoute *sipsnHeaderRouteCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderRoute, sipsnHeaderRoute, Routes, Route, SipsnRoute, route )
PB_API SipsnRoute *sipsnHeaderRouteTryDecodeRouteAt( SipsnHeaderRoute *hdr, int64_t index );
PB_API void        sipsnHeaderRouteClearRoutes( SipsnHeaderRoute **hdr );

PB_END_DECLS
#endif
