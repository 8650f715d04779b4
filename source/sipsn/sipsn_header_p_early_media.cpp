// SipsnHeaderPEarlyMedia: the P-Early-Media header field, RFC 5009 section 8.
#include "sipsn_header_p_early_media.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderPEarlyMedia
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderPEarlyMedia::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderPEarlyMedia, sipsn___PbsPEarlyMedia, "P-Early-Media" )

static constexpr sipsn::List< SipsnHeaderPEarlyMedia > shape{
    .items   = &SipsnHeaderPEarlyMedia::items,
    .item    = sipsn___SkipEmParam,
    .noLines = sipsn::NoLines::givesEmptyHeader,
};

static PbString *Stored( PbString *emParam )
{
    PB_ASSERT( sipsnEmParamOk( emParam ) );
    return pb::Retain( emParam );
}

SIPSN_DEFINE_HEADER( SipsnHeaderPEarlyMedia, sipsnHeaderPEarlyMedia, SIPSN_HEADER_P_EARLY_MEDIA, sipsn___PbsPEarlyMedia,
                     shape )
SIPSN_DEFINE_LIST( SipsnHeaderPEarlyMedia, sipsnHeaderPEarlyMedia, EmParams, EmParam, PbString, emParam, Stored )

SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaCreate( void ) { return shape.Create(); }

void sipsnHeaderPEarlyMediaClearEmParams( SipsnHeaderPEarlyMedia **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

PbString *sipsnHeaderPEarlyMediaEmParamAt( SipsnHeaderPEarlyMedia *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}
