// Indices of History-Info: what is valid.
#include "sipsn_history_info_index.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnHistoryInfoIndexOk( PbString *index )
{
    PB_ASSERT( index );
    return sipsn::Matches( index, sipsn___SkipHistoryInfoIndex );
}
