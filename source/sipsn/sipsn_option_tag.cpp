// Option tags: what is valid, and the lower-case form.
#include "sipsn_option_tag.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnOptionTagOk( PbString *optionTag )
{
    PB_ASSERT( optionTag );
    return sipsn::Matches( optionTag, sipsn___SkipOptionTag );
}

PbString *sipsnOptionTagNormalize( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsn::ToLower( optionTag );
}
