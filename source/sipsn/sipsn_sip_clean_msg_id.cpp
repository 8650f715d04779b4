// The cid parameter of Referred-By: what is valid.
#include "sipsn_sip_clean_msg_id.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnSipCleanMsgIdOk( PbString *sipCleanMsgId )
{
    PB_ASSERT( sipCleanMsgId );
    return sipsn::Matches( sipCleanMsgId, sipsn___SkipSipCleanMsgId );
}
