// SipsnHeaderUserAgent: the User-Agent header field, RFC 3261 section 20.41.
#include "sipsn_header_user_agent.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"

struct SipsnHeaderUserAgent
{
    PbObj     obj;
    PbString *userAgent;

    using Members = pb::Members< &SipsnHeaderUserAgent::userAgent >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderUserAgent, sipsn___PbsUserAgent, "User-Agent" )

static constexpr sipsn::WholeLine< SipsnHeaderUserAgent > shape{ .text = &SipsnHeaderUserAgent::userAgent,
                                                                 .ok   = sipsnUserAgentOk };

SIPSN_DEFINE_HEADER( SipsnHeaderUserAgent, sipsnHeaderUserAgent, SIPSN_HEADER_USER_AGENT, sipsn___PbsUserAgent, shape )

SipsnHeaderUserAgent *sipsnHeaderUserAgentCreate( PbString *userAgent )
{
    PB_ASSERT( sipsnUserAgentOk( userAgent ) );
    return shape.Create( pb::Retain( userAgent ) );
}

PbString *sipsnHeaderUserAgentUserAgent( SipsnHeaderUserAgent *hdr ) { return PB_GET( hdr, userAgent ); }
void      sipsnHeaderUserAgentSetUserAgent( SipsnHeaderUserAgent **hdr, PbString *userAgent )
{
    PB_SET( hdr, userAgent, sipsnUserAgentOk( userAgent ), pb::Retain( userAgent ) );
}
