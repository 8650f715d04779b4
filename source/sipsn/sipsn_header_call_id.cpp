// SipsnHeaderCallId: the Call-ID header field, RFC 3261 section 20.8.
#include "sipsn_header_call_id.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderCallId
{
    PbObj     obj;
    PbString *callId;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "callId", &SipsnHeaderCallId::callId, sipsn::rule::callId ),
        };
    }
};

SIPSN_DEFINE_NAME( CallId, "Call-Id" )

static constexpr sipsn::WholeLine< SipsnHeaderCallId > shape{};

SIPSN_DEFINE_HEADER( CallId, SIPSN_HEADER_CALL_ID, shape )

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
