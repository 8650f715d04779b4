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

PbString *sipsn___PbsCallId;

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

void sipsn___HeaderCallIdStartup( void ) { sipsn::CreateName( sipsn___PbsCallId, "Call-Id" ); }
void sipsn___HeaderCallIdShutdown( void ) { sipsn::DropName( sipsn___PbsCallId ); }
