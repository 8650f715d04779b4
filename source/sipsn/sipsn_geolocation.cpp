// SipsnGeolocation: one location of a Geolocation header field, RFC 6442 section 4.1 and RFC 8787 section 4.
#include "sipsn_geolocation.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Geolocation )

struct SipsnGeolocation
{
    PbObj               obj;
    PbString           *iri;
    PbString           *locSrc;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnGeolocation::iri, sipsn::rule::iri ),
            sipsn::TextParam( "loc-src", &SipsnGeolocation::locSrc, sipsn::rule::host, "locSrc" ),
            sipsn::OtherParams( &SipsnGeolocation::genericParams ),
        };
    }
};

SIPSN_VALUE( Geolocation, location, SIPSN_GEOLOCATION, sipsn::Address )

SIPSN_CREATE_TEXT( Geolocation, iri, sipsnIriOk )
SIPSN_TEXT( Geolocation, location, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( Geolocation, location, LocSrc, locSrc, sipsnHostOk )
SIPSN_PARAMS( Geolocation, location )
SIPSN_DEFINE_URI( Geolocation, location )
