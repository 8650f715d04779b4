// Display names: read as quoted strings or tokens, always written quoted.
#include "sipsn/sipsn_display_name.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

std::string Decode( std::string_view text )
{
    const auto chs = Chars( text );
    return Take( sipsn___DisplayNameTryDecode( chs.data(), int64_t( chs.size() ) ) );
}

TEST( SipsnDisplayName, ReadsAQuotedStringOrTokens )
{
    EXPECT_EQ( Decode( "\"Mr. \\\"X\\\",  Bob\"" ), "Mr. \"X\",  Bob" );
    EXPECT_EQ( Decode( "Bob" ), "Bob" );
    EXPECT_EQ( Decode( "Mr.\t  Watson \t" ), "Mr. Watson" );
    EXPECT_EQ( Decode( "" ), "" );
    EXPECT_EQ( Decode( "  " ), "" );
    for( const char *text : { "Bob,", "J\u00fcrgen", "\"Bob", "\"Bob\" Watson", "Bob \"Watson\"", "a\nb" } )
        EXPECT_EQ( Decode( text ), "(null)" ) << text;
}

TEST( SipsnDisplayName, IsWrittenInQuotes )
{
    EXPECT_EQ( Take( sipsn___DisplayNameEncode( Str( "Bob" ).Get() ) ), "\"Bob\"" );
    EXPECT_EQ( Take( sipsn___DisplayNameEncode( Str( "" ).Get() ) ), "\"\"" );
    EXPECT_FALSE( sipsnDisplayNameOk( Str( "a\rb" ).Get() ) );
}

} // namespace
