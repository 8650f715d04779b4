// SipsnAddress: an address with parameters, RFC 3261 section 25.1.
#include "sipsn_address.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Address )

struct SipsnAddress
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnAddress::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnAddress::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnAddress::genericParams ),
        };
    }
};

SIPSN_VALUE( Address, address, SIPSN_ADDRESS, sipsn::Address )

SIPSN_CREATE_TEXT( Address, iri, sipsnIriOk )
SIPSN_TEXT( Address, address, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( Address, address, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_PARAMS( Address, address )
SIPSN_DEFINE_URI( Address, address )
