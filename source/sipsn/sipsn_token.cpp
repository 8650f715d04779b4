// Tokens: what is valid, and the lower-case form.
#include "sipsn_token.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnTokenOk( PbString *token )
{
    PB_ASSERT( token );
    return sipsn::Matches( token, sipsn___SkipToken );
}

PbString *sipsnTokenNormalize( PbString *token )
{
    PB_ASSERT( sipsnTokenOk( token ) );
    return sipsn::ToLower( token );
}
