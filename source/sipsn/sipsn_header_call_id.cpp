// SipsnHeaderCallId: the Call-ID header field, RFC 3261 section 20.8.
#include "sipsn_header_call_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"

struct SipsnHeaderCallId
{
    PbObj     obj;
    PbString *callId;

    using Members = pb::Members< &SipsnHeaderCallId::callId >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderCallId, sipsn___PbsCallId, "Call-Id" )

static constexpr sipsn::WholeLine< SipsnHeaderCallId > shape{ .text = &SipsnHeaderCallId::callId, .ok = sipsnCallIdOk };

SIPSN_DEFINE_HEADER( SipsnHeaderCallId, sipsnHeaderCallId, SIPSN_HEADER_CALL_ID, sipsn___PbsCallId, shape )

SipsnHeaderCallId *sipsnHeaderCallIdCreate( PbString *callId )
{
    PB_ASSERT( sipsnCallIdOk( callId ) );
    return shape.Create( pb::Retain( callId ) );
}

PbString *sipsnHeaderCallIdCallId( SipsnHeaderCallId *hdr ) { return PB_GET( hdr, callId ); }
void      sipsnHeaderCallIdSetCallId( SipsnHeaderCallId **hdr, PbString *callId )
{
    PB_SET( hdr, callId, sipsnCallIdOk( callId ), pb::Retain( callId ) );
}
