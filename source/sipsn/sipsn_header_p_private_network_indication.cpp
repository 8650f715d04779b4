// SipsnHeaderPPrivateNetworkIndication: the P-Private-Network-Indication header field, RFC 7316 section 7.
#include "sipsn_header_p_private_network_indication.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderPPrivateNetworkIndication
{
    PbObj               obj;
    PbString           *network;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "network", &SipsnHeaderPPrivateNetworkIndication::network, sipsn::rule::host ),
            sipsn::OtherParams( &SipsnHeaderPPrivateNetworkIndication::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PPrivateNetworkIndication, "P-Private-Network-Indication",
                     SIPSN_HEADER_P_PRIVATE_NETWORK_INDICATION, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderPPrivateNetworkIndication, network, sipsnHostOk )
SIPSN_TEXT( HeaderPPrivateNetworkIndication, hdr, Network, network, sipsnHostOk )
SIPSN_PARAMS( HeaderPPrivateNetworkIndication, hdr )
