// Values of the Resource-Priority header fields: what is valid.
#include "sipsn_rvalue.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnRvalueOk( PbString *rvalue )
{
    PB_ASSERT( rvalue );
    return sipsn::Matches( rvalue, sipsn___SkipRvalue );
}
