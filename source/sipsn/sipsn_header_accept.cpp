// SipsnHeaderAccept: the Accept header field, RFC 3261 section 20.1.
#include "sipsn_header_accept.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Accept )

struct SipsnHeaderAccept
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "accepts", &SipsnHeaderAccept::items, sipsn___SkipAccept, sipsn::schemaAccept ) };
    }
};

SIPSN_DEFINE_NAME( Accept, "Accept" )

static constexpr sipsn::List< SipsnHeaderAccept > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( Accept, SIPSN_HEADER_ACCEPT, shape )
SIPSN_DEFINE_LIST( Accept, Accepts, Accept, SipsnAccept, accept, sipsn___AcceptEncode )

SipsnHeaderAccept *sipsnHeaderAcceptCreate( void ) { return shape.Create(); }
void               sipsnHeaderAcceptClearAccepts( SipsnHeaderAccept **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnAccept *sipsnHeaderAcceptTryDecodeAcceptAt( SipsnHeaderAccept *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___AcceptTryDecode );
}
