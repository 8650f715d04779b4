// Spans of time: the range, and the decimal form.
#include "sipsn_delta_seconds.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDeltaSecondsOk( int64_t deltaSeconds ) { return deltaSeconds >= 0; }

int64_t sipsn___DeltaSecondsTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn::DecodeInt( chs, length, INT64_MAX );
}

PbString *sipsn___DeltaSecondsEncode( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    return pbFormatEncodeInt( deltaSeconds, 10, 0, 0 );
}
