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
    EXPECT_EQ( Take( sipsn___QvalueEncode( 5 ) ), "0.005" );
    for( int64_t qvalue = 0; qvalue <= 1000; ++qvalue ) {
        const std::string text = Take( sipsn___QvalueEncode( qvalue ) );
        EXPECT_EQ( Decode( text ), qvalue ) << text;
        EXPECT_EQ( sipsn___SkipQvalue( Chars( text ).data(), 5 ), 5 ) << text;
    }
}

TEST( SipsnQvalue, MissingDecimalsAreZeros )
{
    for( const auto &[ text, qvalue ] : { std::pair{ "0", 0 },
                                          { "0.", 0 },
                                          { "0.5", 500 },
                                          { "0.12", 120 },
                                          { "1", 1000 },
                                          { "1.", 1000 },
                                          { "1.00", 1000 },
                                          { "", 0 } } )
        EXPECT_EQ( Decode( text ), qvalue ) << text;
}

TEST( SipsnQvalue, OtherTextIsNone )
{
    for( const char *text :
         { "2", "1.001", "1.5", "0.1234", "0.1x", "05", "01.0", "0,5", ".5", " 0", "0 ", "-0", "0.-1" } )
        EXPECT_EQ( Decode( text ), -1 ) << text;
}

} // namespace
