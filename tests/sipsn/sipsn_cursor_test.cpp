// The cursor that decoders read text with.
#include "sipsn/sipsn_cursor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

using sipsn::Cursor, sipsn::Span;

std::vector< PbChar > Characters( std::string_view text ) { return { text.begin(), text.end() }; }

Cursor Over( const std::vector< PbChar > &characters )
{
    return Cursor{ characters.data(), int64_t( characters.size() ) };
}

bool operator==( Span span, std::string_view text )
{
    return std::equal( span.chs, span.chs + span.length, text.begin(), text.end() );
}

TEST( CursorTest, WhatDoesNotMatchConsumesNothing )
{
    const auto text = Characters( "abc = 12" );
    Cursor     in   = Over( text );
    EXPECT_FALSE( in.Take( sipsn___SkipDigits ) );
    EXPECT_FALSE( in.Take( '=' ) );
    EXPECT_FALSE( in.Keyword( "abd" ) );
    EXPECT_TRUE( in.Rest() == "abc = 12" );
    EXPECT_TRUE( in.Take( sipsn___SkipToken ) == "abc" );
    EXPECT_TRUE( in.Take( sipsn___SkipEqual ) == " = " );
    EXPECT_TRUE( in.Take( '1' ) );
    EXPECT_TRUE( in.Rest() == "2" );
    EXPECT_FALSE( in.AtEnd() );
    EXPECT_TRUE( in.Keyword( "2" ) );
    EXPECT_TRUE( in.AtEnd() );
    EXPECT_FALSE( in.Take( sipsn___SkipToken ) );
    EXPECT_FALSE( in.Take( '2' ) );
}

TEST( CursorTest, ParamIsKeywordEqualValue )
{
    constexpr struct
    {
        std::string_view text, value, rest; // no value: none is found, and all is left
    } cases[] = {
        { "ttl=1", "1", "" },
        { "TtL \t= 12 ;a", "12", " ;a" },
        { "ttl=1x", "1", "x" },
        { "ttl=x", "", "ttl=x" },
        { "ttl=", "", "ttl=" },
        { "ttl", "", "ttl" },
        { "ttls=1", "", "ttls=1" },
        { "tt", "", "tt" },
        { "", "", "" },
    };
    for( const auto &[ text, value, rest ] : cases ) {
        const auto characters = Characters( text );
        Cursor     in         = Over( characters );
        EXPECT_TRUE( in.Param( "ttl", sipsn___SkipDigits, "a value" ) == value ) << text;
        EXPECT_TRUE( in.Rest() == rest ) << text;
    }
}

} // namespace
