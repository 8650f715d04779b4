// Values of the Subscription-State header field: what is valid, and the lower-case form.
#include "sipsn_substate_value.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token.h"
#include "sipsn_token_frame.h"

bool sipsnSubstateValueOk( PbString *substateValue )
{
    PB_ASSERT( substateValue );
    return sipsn::Matches( substateValue, sipsn___SkipSubstateValue );
}

PbString *sipsnSubstateValueNormalize( PbString *substateValue )
{
    PB_ASSERT( substateValue );
    return sipsnTokenNormalize( substateValue );
}
