// Values of the Organization header field: what is valid, and the form with single spaces.
#include "sipsn_organization.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnOrganizationOk( PbString *organization )
{
    PB_ASSERT( organization );
    return sipsn::MatchesBetweenBlanks( organization, sipsn___SkipOrganization );
}

PbString *sipsnOrganizationNormalize( PbString *organization )
{
    PB_ABORT_UNLESS( "organization invalid", "sipsnOrganizationOk( organization )",
                     sipsnOrganizationOk( organization ) );
    return sipsn::CollapseBlanks( organization );
}
