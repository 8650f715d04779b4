// SipsnRefusedUri: one address of P-Refused-URI-List, RFC 5318 section 5.
#include "sipsn_refused_uri.h"

#include "sipsn_rules.h"
#include "sipsn_text_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( RefusedUri )

struct SipsnRefusedUri
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *members;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnRefusedUri::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnRefusedUri::displayName, sipsn::rule::displayName ),
            sipsn::TextParam( "members", &SipsnRefusedUri::members, sipsn::rule::quotedIri ),
            sipsn::OtherParams( &SipsnRefusedUri::genericParams ),
        };
    }
};

SIPSN_VALUE( RefusedUri, refused, SIPSN_REFUSED_URI, sipsn::Address )

SIPSN_CREATE_TEXT( RefusedUri, iri, sipsnIriOk )
SIPSN_TEXT( RefusedUri, refused, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( RefusedUri, refused, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_OPTIONAL_TEXT( RefusedUri, refused, Members, members, sipsnIriOk )
SIPSN_PARAMS( RefusedUri, refused )
SIPSN_DEFINE_URI( RefusedUri, refused )
