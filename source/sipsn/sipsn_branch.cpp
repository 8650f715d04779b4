// The branch parameter of Via: what is valid.
#include "sipsn_branch.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnBranchOk( PbString *branch )
{
    PB_ASSERT( branch );
    return sipsn::Matches( branch, sipsn___SkipBranch );
}
