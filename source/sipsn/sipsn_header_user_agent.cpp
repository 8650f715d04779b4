// SipsnHeaderUserAgent: the User-Agent header field, RFC 3261 section 20.41.
#include "sipsn_header_user_agent.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule userAgent{
    .words = "products and comments", .ok = sipsnUserAgentOk, .production = sipsn___SkipUserAgent };

} // namespace sipsn::rule

struct SipsnHeaderUserAgent
{
    PbObj     obj;
    PbString *userAgent;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "userAgent", &SipsnHeaderUserAgent::userAgent, sipsn::rule::userAgent ),
        };
    }
};

SIPSN_DEFINE_NAME( UserAgent, "User-Agent" )

static constexpr sipsn::WholeLine< SipsnHeaderUserAgent > shape{};

SIPSN_DEFINE_HEADER( UserAgent, SIPSN_HEADER_USER_AGENT, shape )

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
