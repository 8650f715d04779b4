/* SipsnHeaderServiceRoute: the Service-Route header field, RFC 3608; a list of sr-values.
 *
 * Example: Service-Route: <sip:p2.home.example.com;lr>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeRouteAt asks for it, which gives null when it is no
 * sr-value. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_SERVICE_ROUTE_H
#define SIPSN_HEADER_SERVICE_ROUTE_H

#include "sipsn_header.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderServiceRoute, sipsnHeaderServiceRoute )

PB_API SipsnHeaderServiceRoute *sipsnHeaderServiceRouteCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderServiceRoute, sipsnHeaderServiceRoute, Routes, Route, SipsnRoute, route )
PB_API SipsnRoute *sipsnHeaderServiceRouteTryDecodeRouteAt( SipsnHeaderServiceRoute *hdr, int64_t index );
PB_API void        sipsnHeaderServiceRouteClearRoutes( SipsnHeaderServiceRoute **hdr );

PB_END_DECLS
#endif
