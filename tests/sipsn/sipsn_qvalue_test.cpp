// Q-values: thousandths with a decimal point.
#include "sipsn/sipsn_qvalue.h"
#include "sipsn/sipsn_skip_internal.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

int64_t Decode( std::string_view text )
{
    const auto chs = Chars( text );
    return sipsn___QvalueTryDecode( chs.data(), int64_t( chs.size() ) );
}

TEST( SipsnQvalue, EveryValueIsWrittenWithThreeDecimalsAndReadBack )
{
    EXPECT_EQ( Take( sipsn___QvalueEncode( 0 ) ), "0.000" );
    EXPECT_EQ( Take( sipsn___QvalueEncode( 5 ) ), "0.005" );
    EXPECT_EQ( Take( sipsn___QvalueEncode( 500 ) ), "0.500" );
    EXPECT_EQ( Take( sipsn___QvalueEncode( 1000 ) ), "1.000" );
    for( int64_t qvalue = 0; qvalue <= 1000; ++qvalue ) {
        const std::string text = Take( sipsn___QvalueEncode( qvalue ) );
        EXPECT_EQ( Decode( text ), qvalue ) << text;
        EXPECT_EQ( sipsn___SkipQvalue( Chars( text ).data(), 5 ), 5 ) << text;
    }
}

TEST( SipsnQvalue, MissingDecimalsAreZeros )
{
    EXPECT_EQ( Decode( "0" ), 0 );
    EXPECT_EQ( Decode( "0." ), 0 );
    EXPECT_EQ( Decode( "0.5" ), 500 );
    EXPECT_EQ( Decode( "0.12" ), 120 );
    EXPECT_EQ( Decode( "1" ), 1000 );
    EXPECT_EQ( Decode( "1." ), 1000 );
    EXPECT_EQ( Decode( "1.00" ), 1000 );
    EXPECT_EQ( Decode( "" ), 0 );
}

TEST( SipsnQvalue, OtherTextIsNone )
{
    for( const char *text :
         { "2", "1.001", "1.5", "0.1234", "0.1x", "05", "01.0", "0,5", ".5", " 0", "0 ", "-0", "0.-1" } )
        EXPECT_EQ( Decode( text ), -1 ) << text;
}

} // namespace
