// Event types: what is valid.
#include "sipsn_event_type.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnEventTypeOk( PbString *eventType )
{
    PB_ASSERT( eventType );
    return sipsn::Matches( eventType, sipsn___SkipEventType );
}
