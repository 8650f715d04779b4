// SipsnHeaderCellularNetworkInfo: the Cellular-Network-Info header field, 3GPP TS 24.229.
#include "sipsn_header_cellular_network_info.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderCellularNetworkInfo
{
    PbObj               obj;
    PbString           *accessType;
    int64_t             cellInfoAge;
    PbString           *utranCellId3gpp;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "accessType", &SipsnHeaderCellularNetworkInfo::accessType, sipsn::rule::token ),
            sipsn::IntParam( "cell-info-age", &SipsnHeaderCellularNetworkInfo::cellInfoAge, sipsn::rule::deltaSeconds,
                             "cellInfoAge" ),
            sipsn::TextParam( "utran-cell-id-3gpp", &SipsnHeaderCellularNetworkInfo::utranCellId3gpp,
                              sipsn::rule::genValue, "utranCellId3gpp" ),
            sipsn::OtherParams( &SipsnHeaderCellularNetworkInfo::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( CellularNetworkInfo, "Cellular-Network-Info", SIPSN_HEADER_CELLULAR_NETWORK_INFO, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderCellularNetworkInfo, accessType, sipsnTokenOk )
SIPSN_TEXT( HeaderCellularNetworkInfo, hdr, AccessType, accessType, sipsnTokenOk )
SIPSN_OPTIONAL_INT( HeaderCellularNetworkInfo, hdr, CellInfoAge, cellInfoAge, sipsnDeltaSecondsOk )
SIPSN_OPTIONAL_TEXT( HeaderCellularNetworkInfo, hdr, UtranCellId3gpp, utranCellId3gpp, sipsnQuotableStringOk )
SIPSN_PARAMS( HeaderCellularNetworkInfo, hdr )
