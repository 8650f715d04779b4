// Call-IDs: what is valid.
#include "sipsn_call_id.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnCallIdOk( PbString *callId )
{
    PB_ASSERT( callId );
    return sipsn::Matches( callId, sipsn___SkipCallId );
}
