// SipsnHeaderRecordRoute: the Record-Route header field, RFC 3261 section 20.30.
#include "sipsn_header_record_route.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderRecordRoute
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderRecordRoute::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderRecordRoute, sipsn___PbsRecordRoute, "Record-Route" )

static constexpr sipsn::List< SipsnHeaderRecordRoute > shape{
    .items   = &SipsnHeaderRecordRoute::items,
    .item    = sipsn___SkipRoute,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderRecordRoute, sipsnHeaderRecordRoute, SIPSN_HEADER_RECORD_ROUTE, sipsn___PbsRecordRoute,
                     shape )
SIPSN_DEFINE_LIST( SipsnHeaderRecordRoute, sipsnHeaderRecordRoute, Routes, Route, SipsnRoute, route,
                   sipsn___RouteEncode )

SipsnHeaderRecordRoute *sipsnHeaderRecordRouteCreate( void ) { return shape.Create(); }
void                    sipsnHeaderRecordRouteClearRoutes( SipsnHeaderRecordRoute **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnRoute *sipsnHeaderRecordRouteTryDecodeRouteAt( SipsnHeaderRecordRoute *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___RouteTryDecode );
}
