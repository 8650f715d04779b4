// SipsnHeaderReason: the Reason header field, RFC 3326 section 2.
#include "sipsn_header_reason.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Reason )

struct SipsnHeaderReason
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "reasons", &SipsnHeaderReason::items, sipsn___SkipReason, sipsn::schemaReason ) };
    }
};

SIPSN_DEFINE_NAME( Reason, "Reason" )

static constexpr sipsn::List< SipsnHeaderReason > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( Reason, SIPSN_HEADER_REASON, shape )
SIPSN_DEFINE_LIST( Reason, Reasons, Reason, SipsnReason, reason, sipsn___ReasonEncode )

SipsnHeaderReason *sipsnHeaderReasonCreate( void ) { return shape.Create(); }
void               sipsnHeaderReasonClearReasons( SipsnHeaderReason **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnReason *sipsnHeaderReasonTryDecodeReasonAt( SipsnHeaderReason *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ReasonTryDecode );
}
