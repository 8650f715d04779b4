// SipsnHeaderRecordRoute: the Record-Route header field, RFC 3261 section 20.30.
#include "sipsn_header_record_route.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Route )

struct SipsnHeaderRecordRoute
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "routes", &SipsnHeaderRecordRoute::items, sipsn___SkipRoute, sipsn::schemaRoute ) };
    }
};

SIPSN_DEFINE_NAME( RecordRoute, "Record-Route" )

static constexpr sipsn::List< SipsnHeaderRecordRoute > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( RecordRoute, SIPSN_HEADER_RECORD_ROUTE, shape )
SIPSN_DEFINE_LIST( RecordRoute, Routes, Route, SipsnRoute, route, sipsn___RouteEncode )

SipsnHeaderRecordRoute *sipsnHeaderRecordRouteCreate( void ) { return shape.Create(); }
void                    sipsnHeaderRecordRouteClearRoutes( SipsnHeaderRecordRoute **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnRoute *sipsnHeaderRecordRouteTryDecodeRouteAt( SipsnHeaderRecordRoute *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___RouteTryDecode );
}
