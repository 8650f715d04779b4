// Causes of Reason: what is valid.
#include "sipsn_reason_cause.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnReasonCauseOk( PbString *reasonCause )
{
    PB_ASSERT( reasonCause );
    return sipsn::Matches( reasonCause, sipsn___SkipReasonCause );
}
