// Values of the Priority header field: what is valid, and the lower-case form.
#include "sipsn_priority_value.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnPriorityValueOk( PbString *priorityValue )
{
    PB_ASSERT( priorityValue );
    return sipsn::Matches( priorityValue, sipsn___SkipPriorityValue );
}

PbString *sipsnPriorityValueNormalize( PbString *priorityValue )
{
    PB_ASSERT( sipsnPriorityValueOk( priorityValue ) );
    return sipsn::ToLower( priorityValue );
}
