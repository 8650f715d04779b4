// SipsnHeaderGeolocationRouting: the Geolocation-Routing header field, RFC 6442 section 4.2.
#include "sipsn_header_geolocation_routing.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderGeolocationRouting
{
    PbObj     obj;
    PbString *geolocationRouting;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "geolocationRouting", &SipsnHeaderGeolocationRouting::geolocationRouting,
                         sipsn::rule::lowerToken ),
        };
    }
};

SIPSN_SINGLE_HEADER( GeolocationRouting, "Geolocation-Routing", SIPSN_HEADER_GEOLOCATION_ROUTING, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderGeolocationRouting, geolocationRouting, sipsnTokenOk )
SIPSN_TEXT( HeaderGeolocationRouting, hdr, GeolocationRouting, geolocationRouting, sipsnTokenOk )
