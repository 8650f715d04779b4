// The epid parameter of From and To: what is valid.
#include "sipsn_epid.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnEpidOk( PbString *epid )
{
    PB_ASSERT( epid );
    return sipsn::Matches( epid, sipsn___SkipEpid );
}
