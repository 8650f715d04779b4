// SipsnHeaderServiceRoute: the Service-Route header field, RFC 3608.
#include "sipsn_header_service_route.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Route )

struct SipsnHeaderServiceRoute
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "routes", &SipsnHeaderServiceRoute::items, sipsn___SkipRoute, sipsn::schemaRoute ) };
    }
};

SIPSN_DEFINE_NAME( ServiceRoute, "Service-Route" )

static constexpr sipsn::List< SipsnHeaderServiceRoute > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( ServiceRoute, SIPSN_HEADER_SERVICE_ROUTE, shape )
SIPSN_DEFINE_LIST( ServiceRoute, Routes, Route, SipsnRoute, route, sipsn___RouteEncode )

SipsnHeaderServiceRoute *sipsnHeaderServiceRouteCreate( void ) { return shape.Create(); }
void sipsnHeaderServiceRouteClearRoutes( SipsnHeaderServiceRoute **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnRoute *sipsnHeaderServiceRouteTryDecodeRouteAt( SipsnHeaderServiceRoute *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___RouteTryDecode );
}
