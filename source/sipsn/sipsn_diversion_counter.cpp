// The counter parameter of Diversion: the range, and the decimal form.
#include "sipsn_diversion_counter.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDiversionCounterOk( int64_t diversionCounter ) { return diversionCounter >= 0 && diversionCounter <= 99; }

int64_t sipsn___DiversionCounterTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn::DecodeInt( chs, length, 99 );
}

PbString *sipsn___DiversionCounterEncode( int64_t diversionCounter )
{
    PB_ASSERT( sipsnDiversionCounterOk( diversionCounter ) );
    return pbFormatEncodeInt( diversionCounter, 10, 0, 0 );
}
