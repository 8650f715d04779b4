// The ttl parameter of Via: the range, and the decimal form.
#include "sipsn_ttl.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnTtlOk( int64_t ttl ) { return ttl >= 0 && ttl <= 255; }

int64_t sipsn___TtlTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn::DecodeInt( chs, length, 255 );
}

PbString *sipsn___TtlEncode( int64_t ttl )
{
    PB_ASSERT( sipsnTtlOk( ttl ) );
    return pbFormatEncodeInt( ttl, 10, 0, 0 );
}
