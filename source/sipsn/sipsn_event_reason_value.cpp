// The reason parameter of Subscription-State: what is valid, and the lower-case form.
#include "sipsn_event_reason_value.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token.h"
#include "sipsn_token_frame.h"

bool sipsnEventReasonValueOk( PbString *eventReasonValue )
{
    PB_ASSERT( eventReasonValue );
    return sipsn::Matches( eventReasonValue, sipsn___SkipEventReasonValue );
}

PbString *sipsnEventReasonValueNormalize( PbString *eventReasonValue )
{
    PB_ASSERT( eventReasonValue );
    return sipsnTokenNormalize( eventReasonValue );
}
