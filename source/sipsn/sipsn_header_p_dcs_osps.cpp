// SipsnHeaderPDcsOsps: the P-DCS-OSPS header field, RFC 5503 section 6.1.
#include "sipsn_header_p_dcs_osps.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderPDcsOsps
{
    PbObj     obj;
    PbString *ospsTag;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "ospsTag", &SipsnHeaderPDcsOsps::ospsTag, sipsn::rule::token ),
        };
    }
};

SIPSN_SINGLE_HEADER( PDcsOsps, "P-Dcs-Osps", SIPSN_HEADER_P_DCS_OSPS, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderPDcsOsps, ospsTag, sipsnTokenOk )
SIPSN_TEXT( HeaderPDcsOsps, hdr, OspsTag, ospsTag, sipsnTokenOk )
