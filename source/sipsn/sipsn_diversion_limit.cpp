// The limit parameter of Diversion: the range, and the decimal form.
#include "sipsn_diversion_limit.h"

#include "sipsn_diversion_counter.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDiversionLimitOk( int64_t diversionLimit ) { return sipsnDiversionCounterOk( diversionLimit ); }

int64_t sipsn___DiversionLimitTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn___DiversionCounterTryDecode( chs, length );
}

PbString *sipsn___DiversionLimitEncode( int64_t diversionLimit )
{
    PB_ASSERT( sipsnDiversionLimitOk( diversionLimit ) );
    return pbFormatEncodeInt( diversionLimit, 10, 0, 0 );
}
