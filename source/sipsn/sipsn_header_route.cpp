// SipsnHeaderRoute: the Route header field, RFC 3261 section 20.34.
#include "sipsn_header_route.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Route )

struct SipsnHeaderRoute
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "routes", &SipsnHeaderRoute::items, sipsn___SkipRoute, sipsn::schemaRoute ) };
    }
};

SIPSN_DEFINE_NAME( Route, "Route" )

static constexpr sipsn::List< SipsnHeaderRoute > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( Route, SIPSN_HEADER_ROUTE, shape )
SIPSN_DEFINE_LIST( Route, Routes, Route, SipsnRoute, route, sipsn___RouteEncode )

SipsnHeaderRoute *sipsnHeaderRouteCreate( void ) { return shape.Create(); }
void              sipsnHeaderRouteClearRoutes( SipsnHeaderRoute **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnRoute *sipsnHeaderRouteTryDecodeRouteAt( SipsnHeaderRoute *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___RouteTryDecode );
}
