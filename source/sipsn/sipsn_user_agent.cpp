// Values of the User-Agent header field: what is valid.
#include "sipsn_user_agent.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnUserAgentOk( PbString *userAgent )
{
    PB_ASSERT( userAgent );
    return sipsn::Matches( userAgent, sipsn___SkipUserAgent );
}
