// SipsnHeaderRelayedCharge: the Relayed-Charge header field, 3GPP TS 24.229.
#include "sipsn_header_relayed_charge.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( RelayedCharge )

struct SipsnHeaderRelayedCharge
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "relayedCharges", &SipsnHeaderRelayedCharge::items,
                                                  sipsn::SkipListItem, sipsn::schemaRelayedCharge ) };
    }
};

SIPSN_LIST_HEADER( RelayedCharge, "Relayed-Charge", SIPSN_HEADER_RELAYED_CHARGE, givesNull )

SIPSN_VALUES( RelayedCharge, RelayedCharges, RelayedCharge, RelayedCharge, charge )
