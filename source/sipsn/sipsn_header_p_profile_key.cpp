// SipsnHeaderPProfileKey: the P-Profile-Key header field, RFC 5002 section 5.
#include "sipsn_header_p_profile_key.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderPProfileKey
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderPProfileKey::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderPProfileKey::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderPProfileKey::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PProfileKey, "P-Profile-Key", SIPSN_HEADER_P_PROFILE_KEY, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderPProfileKey, iri, sipsnIriOk )
SIPSN_TEXT( HeaderPProfileKey, hdr, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPProfileKey, hdr, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_PARAMS( HeaderPProfileKey, hdr )
SIPSN_DEFINE_URI( HeaderPProfileKey, hdr )
