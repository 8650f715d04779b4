// Values of the Privacy header field: what is valid, and the lower-case form.
#include "sipsn_priv_value.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnPrivValueOk( PbString *privValue )
{
    PB_ASSERT( privValue );
    return sipsn::Matches( privValue, sipsn___SkipPrivValue );
}

PbString *sipsnPrivValueNormalize( PbString *privValue )
{
    PB_ASSERT( sipsnPrivValueOk( privValue ) );
    return sipsn::ToLower( privValue );
}
