// SipsnChargingAddresses: one set of addresses of P-Charging-Function-Addresses, RFC 7315 section 5.5.
#include "sipsn_charging_addresses.h"

#include "sipsn_param_forms.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( ChargingAddresses )

struct SipsnChargingAddresses
{
    PbObj               obj;
    PbString           *ccf;
    PbString           *ecf;
    PbString           *ccf2;
    PbString           *ecf2;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::TextParam( "ccf", &SipsnChargingAddresses::ccf, sipsn::rule::genValue ),
            sipsn::TextParam( "ecf", &SipsnChargingAddresses::ecf, sipsn::rule::genValue ),
            sipsn::TextParam( "ccf-2", &SipsnChargingAddresses::ccf2, sipsn::rule::genValue, "ccf2" ),
            sipsn::TextParam( "ecf-2", &SipsnChargingAddresses::ecf2, sipsn::rule::genValue, "ecf2" ),
            sipsn::OtherParams( &SipsnChargingAddresses::genericParams ),
        };
    }
};

SIPSN_VALUE( ChargingAddresses, addresses, SIPSN_CHARGING_ADDRESSES, sipsn::OnlyParams )

SIPSN_CREATE( ChargingAddresses )
SIPSN_OPTIONAL_TEXT( ChargingAddresses, addresses, Ccf, ccf, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( ChargingAddresses, addresses, Ecf, ecf, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( ChargingAddresses, addresses, Ccf2, ccf2, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( ChargingAddresses, addresses, Ecf2, ecf2, sipsnQuotableStringOk )
SIPSN_PARAMS( ChargingAddresses, addresses )
