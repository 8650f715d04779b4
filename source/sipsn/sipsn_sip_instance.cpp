// The +sip.instance parameter of Contact: what is valid.
#include "sipsn_sip_instance.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnSipInstanceOk( PbString *sipInstance )
{
    PB_ASSERT( sipInstance );
    return sipsn::Matches( sipInstance, sipsn___SkipSipInstance );
}
