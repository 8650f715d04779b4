// SipsnHeaderDiversion: the Diversion header field, RFC 5806.
#include "sipsn_header_diversion.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderDiversion
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderDiversion::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderDiversion, sipsn___PbsDiversion, "Diversion" )

static constexpr sipsn::List< SipsnHeaderDiversion > shape{
    .items   = &SipsnHeaderDiversion::items,
    .item    = sipsn___SkipDiversion,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderDiversion, sipsnHeaderDiversion, SIPSN_HEADER_DIVERSION, sipsn___PbsDiversion, shape )
SIPSN_DEFINE_LIST( SipsnHeaderDiversion, sipsnHeaderDiversion, Diversions, Diversion, SipsnDiversion, diversion,
                   sipsn___DiversionEncode )

SipsnHeaderDiversion *sipsnHeaderDiversionCreate( void ) { return shape.Create(); }
void                  sipsnHeaderDiversionClearDiversions( SipsnHeaderDiversion **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnDiversion *sipsnHeaderDiversionTryDecodeDiversionAt( SipsnHeaderDiversion *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___DiversionTryDecode );
}
