// SipsnHeaderPVisitedNetworkId: the P-Visited-Network-ID header field, RFC 7315 section 5.3.
#include "sipsn_header_p_visited_network_id.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( VisitedNetwork )

struct SipsnHeaderPVisitedNetworkId
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "networks", &SipsnHeaderPVisitedNetworkId::items, sipsn::SkipListItem,
                                                  sipsn::schemaVisitedNetwork ) };
    }
};

SIPSN_LIST_HEADER( PVisitedNetworkId, "P-Visited-Network-Id", SIPSN_HEADER_P_VISITED_NETWORK_ID, givesNull )

SIPSN_VALUES( PVisitedNetworkId, Networks, Network, VisitedNetwork, visited )
