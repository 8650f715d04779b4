// Q-values: the range, and the form with a decimal point.
#include "sipsn_qvalue.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnQvalueOk( int64_t qvalue ) { return qvalue >= 0 && qvalue <= 1000; }

int64_t sipsn___QvalueTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    if( length == 0 ) return 0;
    if( length > 5 || ( chs[ 0 ] != '0' && chs[ 0 ] != '1' ) ) return -1;
    if( length > 1 && chs[ 1 ] != '.' ) return -1;

    const PbChar highest = chs[ 0 ] == '1' ? '0' : '9'; // of the decimals
    int64_t      qvalue  = ( chs[ 0 ] - '0' ) * 1000;
    int64_t      unit    = 100;
    for( int64_t i = 2; i < length; ++i, unit /= 10 ) {
        if( chs[ i ] < '0' || chs[ i ] > highest ) return -1;
        qvalue += ( chs[ i ] - '0' ) * unit;
    }
    return qvalue;
}

PbString *sipsn___QvalueEncode( int64_t qvalue )
{
    PB_ASSERT( sipsnQvalueOk( qvalue ) );

    PbString  *encoded = pb___StringCreateUninitialized( 5 );
    const auto digit   = [ = ]( int64_t unit ) { return PbChar( '0' + qvalue / unit % 10 ); };
    encoded->chs[ 0 ]  = digit( 1000 );
    encoded->chs[ 1 ]  = '.';
    encoded->chs[ 2 ]  = digit( 100 );
    encoded->chs[ 3 ]  = digit( 10 );
    encoded->chs[ 4 ]  = digit( 1 );
    return encoded;
}
