// SipsnHeaderVia: the Via header field, RFC 3261 section 20.42.
#include "sipsn_header_via.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderVia
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderVia::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderVia, sipsn___PbsVia, "Via" )

static constexpr sipsn::List< SipsnHeaderVia > shape{
    .items   = &SipsnHeaderVia::items,
    .item    = sipsn___SkipVia,
    .noLines = sipsn::NoLines::givesEmptyHeader,
};

SIPSN_DEFINE_HEADER( SipsnHeaderVia, sipsnHeaderVia, SIPSN_HEADER_VIA, sipsn___PbsVia, shape )
SIPSN_DEFINE_LIST( SipsnHeaderVia, sipsnHeaderVia, Vias, Via, SipsnVia, via, sipsn___ViaEncode )

SipsnHeaderVia *sipsnHeaderViaCreate( void ) { return shape.Create(); }
void            sipsnHeaderViaClearVias( SipsnHeaderVia **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnVia *sipsnHeaderViaTryDecodeViaAt( SipsnHeaderVia *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ViaTryDecode );
}
