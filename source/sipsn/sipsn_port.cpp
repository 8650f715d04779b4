// Ports: the range, and the decimal form.
#include "sipsn_port.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnPortOk( int64_t port ) { return port >= 0; }

int64_t sipsn___PortTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn::DecodeInt( chs, length, INT64_MAX );
}

PbString *sipsn___PortEncode( int64_t port )
{
    PB_ASSERT( sipsnPortOk( port ) );
    return pbFormatEncodeInt( port, 10, 0, 0 );
}
