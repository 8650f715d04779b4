// SipsnHeaderServer: the Server header field, RFC 3261 section 20.35.
#include "sipsn_header_server.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"

struct SipsnHeaderServer
{
    PbObj     obj;
    PbString *server;

    using Members = pb::Members< &SipsnHeaderServer::server >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderServer, sipsn___PbsServer, "Server" )

static constexpr sipsn::WholeLine< SipsnHeaderServer > shape{ .text = &SipsnHeaderServer::server, .ok = sipsnServerOk };

SIPSN_DEFINE_HEADER( SipsnHeaderServer, sipsnHeaderServer, SIPSN_HEADER_SERVER, sipsn___PbsServer, shape )

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
