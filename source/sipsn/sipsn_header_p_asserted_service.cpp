// SipsnHeaderPAssertedService: the P-Asserted-Service header field, RFC 6050 section 4.1.
#include "sipsn_header_p_asserted_service.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderPAssertedService
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "serviceIds", &SipsnHeaderPAssertedService::items, sipsn::rule::serviceId ) };
    }
};

SIPSN_LIST_HEADER( PAssertedService, "P-Asserted-Service", SIPSN_HEADER_P_ASSERTED_SERVICE, givesNull )

SIPSN_TEXTS( PAssertedService, ServiceIds, ServiceId, serviceId, sipsnServiceIdOk )
