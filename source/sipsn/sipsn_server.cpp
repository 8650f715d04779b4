// Values of the Server header field: what is valid.
#include "sipsn_server.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnServerOk( PbString *server )
{
    PB_ASSERT( server );
    return sipsn::Matches( server, sipsn___SkipServer );
}
