// Agents of Warning: what is valid.
#include "sipsn_warn_agent.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnWarnAgentOk( PbString *warnAgent )
{
    PB_ASSERT( warnAgent );
    return sipsn::Matches( warnAgent, sipsn___SkipWarnAgent );
}
