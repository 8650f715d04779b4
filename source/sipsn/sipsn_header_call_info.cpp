// SipsnHeaderCallInfo: the Call-Info header field, RFC 3261 section 20.9.
#include "sipsn_header_call_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( CallInfo )

struct SipsnHeaderCallInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "callInfos", &SipsnHeaderCallInfo::items, sipsn___SkipCallInfo, sipsn::schemaCallInfo ) };
    }
};

SIPSN_DEFINE_NAME( CallInfo, "Call-Info" )

static constexpr sipsn::List< SipsnHeaderCallInfo > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( CallInfo, SIPSN_HEADER_CALL_INFO, shape )
SIPSN_DEFINE_LIST( CallInfo, CallInfos, CallInfo, SipsnCallInfo, callInfo, sipsn___CallInfoEncode )

SipsnHeaderCallInfo *sipsnHeaderCallInfoCreate( void ) { return shape.Create(); }
void                 sipsnHeaderCallInfoClearCallInfos( SipsnHeaderCallInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnCallInfo *sipsnHeaderCallInfoTryDecodeCallInfoAt( SipsnHeaderCallInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___CallInfoTryDecode );
}
