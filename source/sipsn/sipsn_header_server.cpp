// SipsnHeaderServer: the Server header field, RFC 3261 section 20.35.
#include "sipsn_header_server.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule server{
    .words = "products and comments", .ok = sipsnServerOk, .production = sipsn___SkipServer };

} // namespace sipsn::rule

struct SipsnHeaderServer
{
    PbObj     obj;
    PbString *server;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "server", &SipsnHeaderServer::server, sipsn::rule::server ),
        };
    }
};

SIPSN_DEFINE_NAME( Server, "Server" )

static constexpr sipsn::WholeLine< SipsnHeaderServer > shape{};

SIPSN_DEFINE_HEADER( Server, SIPSN_HEADER_SERVER, shape )

SipsnHeaderServer *sipsnHeaderServerCreate( PbString *server )
{
    PB_ASSERT( sipsnServerOk( server ) );
    return shape.Create( pb::Retain( server ) );
}

PbString *sipsnHeaderServerServer( SipsnHeaderServer *hdr ) { return PB_GET( hdr, server ); }
void      sipsnHeaderServerSetServer( SipsnHeaderServer **hdr, PbString *server )
{
    PB_SET( hdr, server, sipsnServerOk( server ), pb::Retain( server ) );
}
