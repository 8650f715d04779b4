// SipsnHeaderPPreferredService: the P-Preferred-Service header field, RFC 6050 section 4.2.
#include "sipsn_header_p_preferred_service.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderPPreferredService
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Items( "serviceIds", &SipsnHeaderPPreferredService::items, sipsn::rule::serviceId ) };
    }
};

SIPSN_LIST_HEADER( PPreferredService, "P-Preferred-Service", SIPSN_HEADER_P_PREFERRED_SERVICE, givesNull )

SIPSN_TEXTS( PPreferredService, ServiceIds, ServiceId, serviceId, sipsnServiceIdOk )
