// SipsnHeaderTimestamp: the Timestamp header field, RFC 3261 section 20.38.
#include "sipsn_header_timestamp.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule timestampValue{
    .words = "a timestamp", .ok = sipsnTimestampValueOk, .production = sipsn___SkipTimestampValue };

} // namespace sipsn::rule

struct SipsnHeaderTimestamp
{
    PbObj     obj;
    PbString *timestampValue;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "timestampValue", &SipsnHeaderTimestamp::timestampValue, sipsn::rule::timestampValue ),
        };
    }
};

SIPSN_DEFINE_NAME( Timestamp, "Timestamp" )

static constexpr sipsn::WholeLine< SipsnHeaderTimestamp > shape{};

SIPSN_DEFINE_HEADER( Timestamp, SIPSN_HEADER_TIMESTAMP, shape )

SipsnHeaderTimestamp *sipsnHeaderTimestampCreate( PbString *timestampValue )
{
    PB_ASSERT( sipsnTimestampValueOk( timestampValue ) );
    return shape.Create( pb::Retain( timestampValue ) );
}

PbString *sipsnHeaderTimestampTimestampValue( SipsnHeaderTimestamp *hdr ) { return PB_GET( hdr, timestampValue ); }
void      sipsnHeaderTimestampSetTimestampValue( SipsnHeaderTimestamp **hdr, PbString *timestampValue )
{
    PB_SET( hdr, timestampValue, sipsnTimestampValueOk( timestampValue ), pb::Retain( timestampValue ) );
}
