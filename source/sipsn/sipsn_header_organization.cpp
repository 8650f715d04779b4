// SipsnHeaderOrganization: the Organization header field, RFC 3261 section 20.25.
#include "sipsn_header_organization.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_token_frame.h"

struct SipsnHeaderOrganization
{
    PbObj     obj;
    PbString *organization;

    using Members = pb::Members< &SipsnHeaderOrganization::organization >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderOrganization, sipsn___PbsOrganization, "Organization" )

static constexpr sipsn::WholeLine< SipsnHeaderOrganization > shape{
    .text = &SipsnHeaderOrganization::organization, .ok = sipsnOrganizationOk, .normalized = sipsn::CollapseBlanks };

SIPSN_DEFINE_HEADER( SipsnHeaderOrganization, sipsnHeaderOrganization, SIPSN_HEADER_ORGANIZATION,
                     sipsn___PbsOrganization, shape )

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
