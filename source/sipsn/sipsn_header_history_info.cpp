// SipsnHeaderHistoryInfo: the History-Info header field, RFC 7044 section 5.
#include "sipsn_header_history_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderHistoryInfo
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderHistoryInfo::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderHistoryInfo, sipsn___PbsHistoryInfo, "History-Info" )

static constexpr sipsn::List< SipsnHeaderHistoryInfo > shape{
    .items   = &SipsnHeaderHistoryInfo::items,
    .item    = sipsn___SkipHistoryInfo,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderHistoryInfo, sipsnHeaderHistoryInfo, SIPSN_HEADER_HISTORY_INFO, sipsn___PbsHistoryInfo,
                     shape )
SIPSN_DEFINE_LIST( SipsnHeaderHistoryInfo, sipsnHeaderHistoryInfo, HistoryInfos, HistoryInfo, SipsnHistoryInfo,
                   historyInfo, sipsn___HistoryInfoEncode )

SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoCreate( void ) { return shape.Create(); }
void sipsnHeaderHistoryInfoClearHistoryInfos( SipsnHeaderHistoryInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnHistoryInfo *sipsnHeaderHistoryInfoTryDecodeHistoryInfoAt( SipsnHeaderHistoryInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___HistoryInfoTryDecode );
}
