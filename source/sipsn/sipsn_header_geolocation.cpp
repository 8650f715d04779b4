// SipsnHeaderGeolocation: the Geolocation header field, RFC 6442 section 4.1.
#include "sipsn_header_geolocation.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Geolocation )

struct SipsnHeaderGeolocation
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "geolocations", &SipsnHeaderGeolocation::items, sipsn::SkipListItem,
                                                  sipsn::schemaGeolocation ) };
    }
};

SIPSN_LIST_HEADER( Geolocation, "Geolocation", SIPSN_HEADER_GEOLOCATION, givesNull )

SIPSN_VALUES( Geolocation, Geolocations, Geolocation, Geolocation, location )
