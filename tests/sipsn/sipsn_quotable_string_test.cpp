// Free text as a quoted string: what is escaped, what is read, and that nothing is lost on the way.
#include "sipsn/sipsn_quotable_string.h"
#include "sipsn/sipsn_skip_internal.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

#include <random>

namespace {

std::string Encode( std::string_view content ) { return Take( sipsn___QuotableStringEncode( Str( content ).Get() ) ); }

std::string Decode( std::string_view text )
{
    const auto chs = Chars( text );
    return Take( sipsn___QuotableStringTryDecode( chs.data(), int64_t( chs.size() ) ) );
}

TEST( SipsnQuotableString, OnlyLineEndsCannotBeQuoted )
{
    EXPECT_TRUE( sipsnQuotableStringOk( Str( "" ).Get() ) );
    EXPECT_TRUE( sipsnQuotableStringOk( Str( "\"\\\t\x7f \u00e9" ).Get() ) );
    EXPECT_FALSE( sipsnQuotableStringOk( Str( "a\r" ).Get() ) );
    EXPECT_FALSE( sipsnQuotableStringOk( Str( "\nb" ).Get() ) );
}

TEST( SipsnQuotableString, EscapesWhatWouldNotSurvive )
{
    EXPECT_EQ( Encode( "" ), R"("")" );
    EXPECT_EQ( Encode( "Bob" ), R"("Bob")" );
    EXPECT_EQ( Encode( R"(a"b\c)" ), R"("a\"b\\c")" );
    EXPECT_EQ( Encode( std::string_view{ "\0\t\x1f!\x7f\u00e9", 7 } ),
               std::string_view( "\"\\\0\\\t\\\x1f!\\\x7f\u00e9\"", 13 ) );
}

TEST( SipsnQuotableString, EscapesEverySecondSpaceOfARun )
{
    EXPECT_EQ( Encode( " " ), R"(" ")" );
    EXPECT_EQ( Encode( "   " ), R"(" \  ")" );
    EXPECT_EQ( Encode( "    " ), R"(" \  \ ")" );
    EXPECT_EQ( Encode( "a  b c  d" ), R"("a \ b c \ d")" );
    EXPECT_EQ( Encode( " \" " ), R"(" \" ")" ); // an escaped character between two spaces ends the run
}

TEST( SipsnQuotableString, ReadsWholeQuotedStringsOnly )
{
    EXPECT_EQ( Decode( R"("")" ), "" );
    EXPECT_EQ( Decode( " \t\"a\\b\\\"\\\\c\"" ), R"(ab"\c)" );
    EXPECT_EQ( Decode( "\"\u00e9\"" ), "\u00e9" );
    for( const char *text :
         { "", "a", "\"", "\"a", "\"a\" ", "\"a\"b", "a\"b\"", "\"a\nb\"", "\"a\\\nb\"", "\"a\\\"", "\"\\" } )
        EXPECT_EQ( Decode( text ), "(null)" ) << text;
}

TEST( SipsnQuotableString, AnyContentComesBack )
{
    std::mt19937       random{ 7 };
    constexpr char32_t alphabet[] = { ' ', ' ', ' ', '"', '\\', '\t', 0, 0x1f, 0x7f, 'a', '%', 0x80, 0xe9, 0x10ffff };
    for( int run = 0; run < 5000; ++run ) {
        pb::Ref content{ pbStringCreate() };
        for( auto left = random() % 12; left > 0; --left )
            pbStringAppendChar( content.Slot(), PbChar( alphabet[ random() % std::size( alphabet ) ] ) );

        pb::Ref       encoded{ sipsn___QuotableStringEncode( content.Get() ) };
        const PbChar *chs    = pbStringBacking( encoded.Get() );
        const int64_t length = pbStringLength( encoded.Get() );
        ASSERT_EQ( sipsn___SkipQuotedString( chs, length ), length ) << Text( encoded.Get() );
        pb::Ref decoded{ sipsn___QuotableStringTryDecode( chs, length ) };
        ASSERT_TRUE( decoded ) << Text( encoded.Get() );
        ASSERT_TRUE( pbStringEquals( decoded.Get(), content.Get() ) ) << Text( encoded.Get() );
    }
}

} // namespace
