// SipsnHeaderVia: the Via header field, RFC 3261 section 20.42.
#include "sipsn_header_via.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Via )

struct SipsnHeaderVia
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "vias", &SipsnHeaderVia::items, sipsn___SkipVia, sipsn::schemaVia ) };
    }
};

SIPSN_DEFINE_NAME( Via, "Via" )

static constexpr sipsn::List< SipsnHeaderVia > shape{ .noLines = sipsn::NoLines::givesEmptyHeader };

SIPSN_DEFINE_HEADER( Via, SIPSN_HEADER_VIA, shape )
SIPSN_DEFINE_LIST( Via, Vias, Via, SipsnVia, via, sipsn___ViaEncode )

SipsnHeaderVia *sipsnHeaderViaCreate( void ) { return shape.Create(); }
void            sipsnHeaderViaClearVias( SipsnHeaderVia **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnVia *sipsnHeaderViaTryDecodeViaAt( SipsnHeaderVia *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ViaTryDecode );
}
