// SipsnHeaderAlertInfo: the Alert-Info header field, RFC 3261 section 20.4.
#include "sipsn_header_alert_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( AlertInfo )

struct SipsnHeaderAlertInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "alertInfos", &SipsnHeaderAlertInfo::items, sipsn___SkipAlertInfo,
                                           sipsn::schemaAlertInfo ) };
    }
};

SIPSN_DEFINE_NAME( AlertInfo, "Alert-Info" )

static constexpr sipsn::List< SipsnHeaderAlertInfo > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( AlertInfo, SIPSN_HEADER_ALERT_INFO, shape )
SIPSN_DEFINE_LIST( AlertInfo, AlertInfos, AlertInfo, SipsnAlertInfo, alertInfo, sipsn___AlertInfoEncode )

SipsnHeaderAlertInfo *sipsnHeaderAlertInfoCreate( void ) { return shape.Create(); }
void                  sipsnHeaderAlertInfoClearAlertInfos( SipsnHeaderAlertInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnAlertInfo *sipsnHeaderAlertInfoTryDecodeAlertInfoAt( SipsnHeaderAlertInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___AlertInfoTryDecode );
}
