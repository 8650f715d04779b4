// Values of the P-Early-Media header field: what is valid.
#include "sipsn_em_param.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnEmParamOk( PbString *emParam )
{
    PB_ASSERT( emParam );
    return sipsn::Matches( emParam, sipsn___SkipEmParam );
}
