// SipsnHeaderAccept: the Accept header field, RFC 3261 section 20.1.
#include "sipsn_header_accept.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderAccept
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderAccept::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderAccept, sipsn___PbsAccept, "Accept" )

static constexpr sipsn::List< SipsnHeaderAccept > shape{
    .items   = &SipsnHeaderAccept::items,
    .item    = sipsn___SkipAccept,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderAccept, sipsnHeaderAccept, SIPSN_HEADER_ACCEPT, sipsn___PbsAccept, shape )
SIPSN_DEFINE_LIST( SipsnHeaderAccept, sipsnHeaderAccept, Accepts, Accept, SipsnAccept, accept, sipsn___AcceptEncode )

SipsnHeaderAccept *sipsnHeaderAcceptCreate( void ) { return shape.Create(); }
void               sipsnHeaderAcceptClearAccepts( SipsnHeaderAccept **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnAccept *sipsnHeaderAcceptTryDecodeAcceptAt( SipsnHeaderAccept *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___AcceptTryDecode );
}
