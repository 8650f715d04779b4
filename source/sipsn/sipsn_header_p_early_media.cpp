// SipsnHeaderPEarlyMedia: the P-Early-Media header field, RFC 5009 section 8.
#include "sipsn_header_p_early_media.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule emParam{ .words = "an em-param", .ok = sipsnEmParamOk, .production = sipsn___SkipEmParam };

} // namespace sipsn::rule

struct SipsnHeaderPEarlyMedia
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "emParams", &SipsnHeaderPEarlyMedia::items, sipsn::rule::emParam ) };
    }
};

SIPSN_DEFINE_NAME( PEarlyMedia, "P-Early-Media" )

static constexpr sipsn::List< SipsnHeaderPEarlyMedia > shape{ .noLines = sipsn::NoLines::givesEmptyHeader };

static PbString *Stored( PbString *emParam )
{
    PB_ASSERT( sipsnEmParamOk( emParam ) );
    return pb::Retain( emParam );
}

SIPSN_DEFINE_HEADER( PEarlyMedia, SIPSN_HEADER_P_EARLY_MEDIA, shape )
SIPSN_DEFINE_LIST( PEarlyMedia, EmParams, EmParam, PbString, emParam, Stored )

SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaCreate( void ) { return shape.Create(); }

void sipsnHeaderPEarlyMediaClearEmParams( SipsnHeaderPEarlyMedia **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

PbString *sipsnHeaderPEarlyMediaEmParamAt( SipsnHeaderPEarlyMedia *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}
