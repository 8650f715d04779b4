// The refresher parameter of Session-Expires: what is valid, and the lower-case form.
#include "sipsn_refresher.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnRefresherOk( PbString *refresher )
{
    PB_ASSERT( refresher );
    return sipsn::Matches( refresher, sipsn___SkipRefresher );
}

PbString *sipsnRefresherNormalize( PbString *refresher )
{
    PB_ASSERT( sipsnRefresherOk( refresher ) );
    return sipsn::ToLower( refresher );
}
