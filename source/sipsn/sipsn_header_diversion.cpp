// SipsnHeaderDiversion: the Diversion header field, RFC 5806.
#include "sipsn_header_diversion.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Diversion )

struct SipsnHeaderDiversion
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "diversions", &SipsnHeaderDiversion::items, sipsn___SkipDiversion,
                                           sipsn::schemaDiversion ) };
    }
};

SIPSN_DEFINE_NAME( Diversion, "Diversion" )

static constexpr sipsn::List< SipsnHeaderDiversion > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( Diversion, SIPSN_HEADER_DIVERSION, shape )
SIPSN_DEFINE_LIST( Diversion, Diversions, Diversion, SipsnDiversion, diversion, sipsn___DiversionEncode )

SipsnHeaderDiversion *sipsnHeaderDiversionCreate( void ) { return shape.Create(); }
void                  sipsnHeaderDiversionClearDiversions( SipsnHeaderDiversion **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnDiversion *sipsnHeaderDiversionTryDecodeDiversionAt( SipsnHeaderDiversion *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___DiversionTryDecode );
}
