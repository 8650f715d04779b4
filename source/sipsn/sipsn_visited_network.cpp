// SipsnVisitedNetwork: one network of P-Visited-Network-ID, RFC 7315 section 5.3.
#include "sipsn_visited_network.h"

#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( VisitedNetwork )

struct SipsnVisitedNetwork
{
    PbObj               obj;
    PbString           *network;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "network", &SipsnVisitedNetwork::network, sipsn::rule::genValue ),
            sipsn::OtherParams( &SipsnVisitedNetwork::genericParams ),
        };
    }
};

SIPSN_VALUE( VisitedNetwork, visited, SIPSN_VISITED_NETWORK, sipsn::Params )

SIPSN_CREATE_TEXT( VisitedNetwork, network, sipsnQuotableStringOk )
SIPSN_TEXT( VisitedNetwork, visited, Network, network, sipsnQuotableStringOk )
SIPSN_PARAMS( VisitedNetwork, visited )
