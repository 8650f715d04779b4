// SipsnHeaderRoute: the Route header field, RFC 3261 section 20.34.
#include "sipsn_header_route.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderRoute
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderRoute::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderRoute, sipsn___PbsRoute, "Route" )

static constexpr sipsn::List< SipsnHeaderRoute > shape{
    .items   = &SipsnHeaderRoute::items,
    .item    = sipsn___SkipRoute,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderRoute, sipsnHeaderRoute, SIPSN_HEADER_ROUTE, sipsn___PbsRoute, shape )
SIPSN_DEFINE_LIST( SipsnHeaderRoute, sipsnHeaderRoute, Routes, Route, SipsnRoute, route, sipsn___RouteEncode )

SipsnHeaderRoute *sipsnHeaderRouteCreate( void ) { return shape.Create(); }
void              sipsnHeaderRouteClearRoutes( SipsnHeaderRoute **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnRoute *sipsnHeaderRouteTryDecodeRouteAt( SipsnHeaderRoute *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___RouteTryDecode );
}
