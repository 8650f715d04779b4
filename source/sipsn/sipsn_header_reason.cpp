// SipsnHeaderReason: the Reason header field, RFC 3326 section 2.
#include "sipsn_header_reason.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderReason
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderReason::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderReason, sipsn___PbsReason, "Reason" )

static constexpr sipsn::List< SipsnHeaderReason > shape{
    .items   = &SipsnHeaderReason::items,
    .item    = sipsn___SkipReason,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderReason, sipsnHeaderReason, SIPSN_HEADER_REASON, sipsn___PbsReason, shape )
SIPSN_DEFINE_LIST( SipsnHeaderReason, sipsnHeaderReason, Reasons, Reason, SipsnReason, reason, sipsn___ReasonEncode )

SipsnHeaderReason *sipsnHeaderReasonCreate( void ) { return shape.Create(); }
void               sipsnHeaderReasonClearReasons( SipsnHeaderReason **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnReason *sipsnHeaderReasonTryDecodeReasonAt( SipsnHeaderReason *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ReasonTryDecode );
}
