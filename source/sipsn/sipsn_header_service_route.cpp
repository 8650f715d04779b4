// SipsnHeaderServiceRoute: the Service-Route header field, RFC 3608.
#include "sipsn_header_service_route.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderServiceRoute
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderServiceRoute::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderServiceRoute, sipsn___PbsServiceRoute, "Service-Route" )

static constexpr sipsn::List< SipsnHeaderServiceRoute > shape{
    .items   = &SipsnHeaderServiceRoute::items,
    .item    = sipsn___SkipRoute,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderServiceRoute, sipsnHeaderServiceRoute, SIPSN_HEADER_SERVICE_ROUTE,
                     sipsn___PbsServiceRoute, shape )
SIPSN_DEFINE_LIST( SipsnHeaderServiceRoute, sipsnHeaderServiceRoute, Routes, Route, SipsnRoute, route,
                   sipsn___RouteEncode )

SipsnHeaderServiceRoute *sipsnHeaderServiceRouteCreate( void ) { return shape.Create(); }
void sipsnHeaderServiceRouteClearRoutes( SipsnHeaderServiceRoute **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnRoute *sipsnHeaderServiceRouteTryDecodeRouteAt( SipsnHeaderServiceRoute *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___RouteTryDecode );
}
