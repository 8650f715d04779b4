// The purpose parameter of Call-Info: what is valid, and the lower-case form.
#include "sipsn_purpose.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnPurposeOk( PbString *purpose )
{
    PB_ASSERT( purpose );
    return sipsn::Matches( purpose, sipsn___SkipPurpose );
}

PbString *sipsnPurposeNormalize( PbString *purpose )
{
    PB_ASSERT( sipsnPurposeOk( purpose ) );
    return sipsn::ToLower( purpose );
}
