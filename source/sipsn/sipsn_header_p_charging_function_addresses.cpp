// SipsnHeaderPChargingFunctionAddresses: the P-Charging-Function-Addresses header field, RFC 7315 section 5.5.
#include "sipsn_header_p_charging_function_addresses.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( ChargingAddresses )

struct SipsnHeaderPChargingFunctionAddresses
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "addresses", &SipsnHeaderPChargingFunctionAddresses::items,
                                                  sipsn::SkipListItem, sipsn::schemaChargingAddresses ) };
    }
};

SIPSN_LIST_HEADER( PChargingFunctionAddresses, "P-Charging-Function-Addresses",
                   SIPSN_HEADER_P_CHARGING_FUNCTION_ADDRESSES, givesNull )

SIPSN_VALUES( PChargingFunctionAddresses, Addresses, Address, ChargingAddresses, addresses )
