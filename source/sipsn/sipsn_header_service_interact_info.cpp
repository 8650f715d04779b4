// SipsnHeaderServiceInteractInfo: the Service-Interact-Info header field, 3GPP TS 24.229.
#include "sipsn_header_service_interact_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( ServiceInteraction )

struct SipsnHeaderServiceInteractInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "serviceInteractions", &SipsnHeaderServiceInteractInfo::items,
                                                  sipsn::SkipListItem, sipsn::schemaServiceInteraction ) };
    }
};

SIPSN_LIST_HEADER( ServiceInteractInfo, "Service-Interact-Info", SIPSN_HEADER_SERVICE_INTERACT_INFO, givesNull )

SIPSN_VALUES( ServiceInteractInfo, ServiceInteractions, ServiceInteraction, ServiceInteraction, service )
