/* SipsnHeaderRecordRoute: the Record-Route header field, RFC 3261 section 20.30; a list of rec-routes.
 *
 * Example: Record-Route: <sip:p1.example.com;lr>;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeRouteAt asks for it, which gives null when it is no
 * rec-route. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_RECORD_ROUTE_H
#define SIPSN_HEADER_RECORD_ROUTE_H

#include "sipsn_header.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderRecordRoute, sipsnHeaderRecordRoute )

PB_API SipsnHeaderRecordRoute *sipsnHeaderRecordRouteCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderRecordRoute, sipsnHeaderRecordRoute, Routes, Route, SipsnRoute, route )
PB_API SipsnRoute *sipsnHeaderRecordRouteTryDecodeRouteAt( SipsnHeaderRecordRoute *hdr, int64_t index );
PB_API void        sipsnHeaderRecordRouteClearRoutes( SipsnHeaderRecordRoute **hdr );

PB_END_DECLS
#endif
