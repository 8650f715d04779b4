// SipsnHeaderHistoryInfo: the History-Info header field, RFC 7044 section 5.
#include "sipsn_header_history_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( HistoryInfo )

struct SipsnHeaderHistoryInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "historyInfos", &SipsnHeaderHistoryInfo::items, sipsn___SkipHistoryInfo,
                                           sipsn::schemaHistoryInfo ) };
    }
};

SIPSN_DEFINE_NAME( HistoryInfo, "History-Info" )

static constexpr sipsn::List< SipsnHeaderHistoryInfo > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( HistoryInfo, SIPSN_HEADER_HISTORY_INFO, shape )
SIPSN_DEFINE_LIST( HistoryInfo, HistoryInfos, HistoryInfo, SipsnHistoryInfo, historyInfo, sipsn___HistoryInfoEncode )

SipsnHeaderHistoryInfo *sipsnHeaderHistoryInfoCreate( void ) { return shape.Create(); }
void sipsnHeaderHistoryInfoClearHistoryInfos( SipsnHeaderHistoryInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnHistoryInfo *sipsnHeaderHistoryInfoTryDecodeHistoryInfoAt( SipsnHeaderHistoryInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___HistoryInfoTryDecode );
}
