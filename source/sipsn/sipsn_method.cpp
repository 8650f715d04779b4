// Methods: what is valid.
#include "sipsn_method.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnMethodOk( PbString *method )
{
    PB_ASSERT( method );
    return sipsn::Matches( method, sipsn___SkipMethod );
}
