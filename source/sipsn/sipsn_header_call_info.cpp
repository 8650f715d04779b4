// SipsnHeaderCallInfo: the Call-Info header field, RFC 3261 section 20.9.
#include "sipsn_header_call_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderCallInfo
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderCallInfo::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderCallInfo, sipsn___PbsCallInfo, "Call-Info" )

static constexpr sipsn::List< SipsnHeaderCallInfo > shape{
    .items   = &SipsnHeaderCallInfo::items,
    .item    = sipsn___SkipCallInfo,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderCallInfo, sipsnHeaderCallInfo, SIPSN_HEADER_CALL_INFO, sipsn___PbsCallInfo, shape )
SIPSN_DEFINE_LIST( SipsnHeaderCallInfo, sipsnHeaderCallInfo, CallInfos, CallInfo, SipsnCallInfo, callInfo,
                   sipsn___CallInfoEncode )

SipsnHeaderCallInfo *sipsnHeaderCallInfoCreate( void ) { return shape.Create(); }
void                 sipsnHeaderCallInfoClearCallInfos( SipsnHeaderCallInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnCallInfo *sipsnHeaderCallInfoTryDecodeCallInfoAt( SipsnHeaderCallInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___CallInfoTryDecode );
}
