// Values of the Timestamp header field: what is valid.
#include "sipsn_timestamp_value.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnTimestampValueOk( PbString *timestampValue )
{
    PB_ASSERT( timestampValue );
    return sipsn::Matches( timestampValue, sipsn___SkipTimestampValue );
}
