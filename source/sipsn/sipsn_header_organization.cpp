// SipsnHeaderOrganization: the Organization header field, RFC 3261 section 20.25.
#include "sipsn_header_organization.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule organization{
    .words = "a text", .ok = sipsnOrganizationOk, .production = sipsn___SkipOrganization, .normal = CollapseBlanks };

} // namespace sipsn::rule

struct SipsnHeaderOrganization
{
    PbObj     obj;
    PbString *organization;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "organization", &SipsnHeaderOrganization::organization, sipsn::rule::organization ),
        };
    }
};

SIPSN_DEFINE_NAME( Organization, "Organization" )

static constexpr sipsn::WholeLine< SipsnHeaderOrganization > shape{};

SIPSN_DEFINE_HEADER( Organization, SIPSN_HEADER_ORGANIZATION, shape )

// The normaliser checks the text.
SipsnHeaderOrganization *sipsnHeaderOrganizationCreate( PbString *organization )
{
    return shape.Create( sipsnOrganizationNormalize( organization ) );
}

PbString *sipsnHeaderOrganizationOrganization( SipsnHeaderOrganization *hdr ) { return PB_GET( hdr, organization ); }
void      sipsnHeaderOrganizationSetOrganization( SipsnHeaderOrganization **hdr, PbString *organization )
{
    PB_PUT( hdr, organization, sipsnOrganizationNormalize( organization ) );
}
