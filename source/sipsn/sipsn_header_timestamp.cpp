// SipsnHeaderTimestamp: the Timestamp header field, RFC 3261 section 20.38.
#include "sipsn_header_timestamp.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"

struct SipsnHeaderTimestamp
{
    PbObj     obj;
    PbString *timestampValue;

    using Members = pb::Members< &SipsnHeaderTimestamp::timestampValue >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderTimestamp, sipsn___PbsTimestamp, "Timestamp" )

static constexpr sipsn::WholeLine< SipsnHeaderTimestamp > shape{ .text = &SipsnHeaderTimestamp::timestampValue,
                                                                 .ok   = sipsnTimestampValueOk };

SIPSN_DEFINE_HEADER( SipsnHeaderTimestamp, sipsnHeaderTimestamp, SIPSN_HEADER_TIMESTAMP, sipsn___PbsTimestamp, shape )

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
