// SipsnHeaderAlertInfo: the Alert-Info header field, RFC 3261 section 20.4.
#include "sipsn_header_alert_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderAlertInfo
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderAlertInfo::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderAlertInfo, sipsn___PbsAlertInfo, "Alert-Info" )

static constexpr sipsn::List< SipsnHeaderAlertInfo > shape{
    .items   = &SipsnHeaderAlertInfo::items,
    .item    = sipsn___SkipAlertInfo,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderAlertInfo, sipsnHeaderAlertInfo, SIPSN_HEADER_ALERT_INFO, sipsn___PbsAlertInfo, shape )
SIPSN_DEFINE_LIST( SipsnHeaderAlertInfo, sipsnHeaderAlertInfo, AlertInfos, AlertInfo, SipsnAlertInfo, alertInfo,
                   sipsn___AlertInfoEncode )

SipsnHeaderAlertInfo *sipsnHeaderAlertInfoCreate( void ) { return shape.Create(); }
void                  sipsnHeaderAlertInfoClearAlertInfos( SipsnHeaderAlertInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnAlertInfo *sipsnHeaderAlertInfoTryDecodeAlertInfoAt( SipsnHeaderAlertInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___AlertInfoTryDecode );
}
