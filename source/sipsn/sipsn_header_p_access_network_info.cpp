// SipsnHeaderPAccessNetworkInfo: the P-Access-Network-Info header field, RFC 7315 section 5.4.
#include "sipsn_header_p_access_network_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( AccessNetwork )

struct SipsnHeaderPAccessNetworkInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "accessNetworks", &SipsnHeaderPAccessNetworkInfo::items,
                                                  sipsn::SkipListItem, sipsn::schemaAccessNetwork ) };
    }
};

SIPSN_LIST_HEADER( PAccessNetworkInfo, "P-Access-Network-Info", SIPSN_HEADER_P_ACCESS_NETWORK_INFO, givesNull )

SIPSN_VALUES( PAccessNetworkInfo, AccessNetworks, AccessNetwork, AccessNetwork, network )
