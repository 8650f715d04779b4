// SipsnHeaderAdditionalIdentity: the Additional-Identity header field, 3GPP TS 24.229.
#include "sipsn_header_additional_identity.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderAdditionalIdentity
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderAdditionalIdentity::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderAdditionalIdentity::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderAdditionalIdentity::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( AdditionalIdentity, "Additional-Identity", SIPSN_HEADER_ADDITIONAL_IDENTITY, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderAdditionalIdentity, iri, sipsnIriOk )
SIPSN_TEXT( HeaderAdditionalIdentity, hdr, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderAdditionalIdentity, hdr, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_PARAMS( HeaderAdditionalIdentity, hdr )
SIPSN_DEFINE_URI( HeaderAdditionalIdentity, hdr )
