// SipsnAccessNetwork: one network of P-Access-Network-Info, RFC 7315 section 5.4 and RFC 7913 section 2.
#include "sipsn_access_network.h"

#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( AccessNetwork )

struct SipsnAccessNetwork
{
    PbObj               obj;
    PbString           *accessType;
    PbString           *cgi3gpp;
    PbString           *utranCellId3gpp;
    PbString           *dslLocation;
    PbString           *iWlanNodeId;
    PbString           *ci3gpp2;
    PbString           *ci3gpp2Femto;
    PbString           *ethLocation;
    PbString           *fiberLocation;
    PbString           *gstnLocation;
    PbString           *operatorSpecificGi;
    PbString           *utranSai3gpp;
    PbString           *dvbRcs2NodeId;
    PbString           *localTimeZone;
    bool                networkProvided;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "accessType", &SipsnAccessNetwork::accessType, sipsn::rule::token ),
            sipsn::TextParam( "cgi-3gpp", &SipsnAccessNetwork::cgi3gpp, sipsn::rule::genValue, "cgi3gpp" ),
            sipsn::TextParam( "utran-cell-id-3gpp", &SipsnAccessNetwork::utranCellId3gpp, sipsn::rule::genValue,
                              "utranCellId3gpp" ),
            sipsn::TextParam( "dsl-location", &SipsnAccessNetwork::dslLocation, sipsn::rule::genValue, "dslLocation" ),
            sipsn::TextParam( "i-wlan-node-id", &SipsnAccessNetwork::iWlanNodeId, sipsn::rule::genValue,
                              "iWlanNodeId" ),
            sipsn::TextParam( "ci-3gpp2", &SipsnAccessNetwork::ci3gpp2, sipsn::rule::genValue, "ci3gpp2" ),
            sipsn::TextParam( "ci-3gpp2-femto", &SipsnAccessNetwork::ci3gpp2Femto, sipsn::rule::genValue,
                              "ci3gpp2Femto" ),
            sipsn::TextParam( "eth-location", &SipsnAccessNetwork::ethLocation, sipsn::rule::genValue, "ethLocation" ),
            sipsn::TextParam( "fiber-location", &SipsnAccessNetwork::fiberLocation, sipsn::rule::genValue,
                              "fiberLocation" ),
            sipsn::TextParam( "gstn-location", &SipsnAccessNetwork::gstnLocation, sipsn::rule::genValue,
                              "gstnLocation" ),
            sipsn::TextParam( "operator-specific-gi", &SipsnAccessNetwork::operatorSpecificGi, sipsn::rule::genValue,
                              "operatorSpecificGi" ),
            sipsn::TextParam( "utran-sai-3gpp", &SipsnAccessNetwork::utranSai3gpp, sipsn::rule::genValue,
                              "utranSai3gpp" ),
            sipsn::TextParam( "dvb-rcs2-node-id", &SipsnAccessNetwork::dvbRcs2NodeId, sipsn::rule::quotedWord,
                              "dvbRcs2NodeId" ),
            sipsn::TextParam( "local-time-zone", &SipsnAccessNetwork::localTimeZone, sipsn::rule::quotedWord,
                              "localTimeZone" ),
            sipsn::FlagParam( "network-provided", &SipsnAccessNetwork::networkProvided, "networkProvided" ),
            sipsn::OtherParams( &SipsnAccessNetwork::genericParams ),
        };
    }
};

SIPSN_VALUE( AccessNetwork, network, SIPSN_ACCESS_NETWORK, sipsn::Params )

SIPSN_CREATE_TEXT( AccessNetwork, accessType, sipsnTokenOk )
SIPSN_TEXT( AccessNetwork, network, AccessType, accessType, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, Cgi3gpp, cgi3gpp, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, UtranCellId3gpp, utranCellId3gpp, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, DslLocation, dslLocation, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, IWlanNodeId, iWlanNodeId, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, Ci3gpp2, ci3gpp2, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, Ci3gpp2Femto, ci3gpp2Femto, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, EthLocation, ethLocation, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, FiberLocation, fiberLocation, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, GstnLocation, gstnLocation, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, OperatorSpecificGi, operatorSpecificGi, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, UtranSai3gpp, utranSai3gpp, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, DvbRcs2NodeId, dvbRcs2NodeId, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( AccessNetwork, network, LocalTimeZone, localTimeZone, sipsnQuotableStringOk )
SIPSN_FLAG( AccessNetwork, network, NetworkProvided, networkProvided )
SIPSN_PARAMS( AccessNetwork, network )
