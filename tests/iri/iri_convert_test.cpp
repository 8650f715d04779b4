// Validation, and conversion between URIs and IRIs: what changes, what stays, and what is refused.
#include "iri/iri.h"

#include "text.h"

#include <random>
#include <vector>

namespace {

struct Case
{
    const char *text;
    const char *converted; // "(null)" where there is no result
};

TEST( IriConvert, FromUriTurnsEscapesIntoWhatAnIriMayHold )
{
    static constexpr Case cases[] = {
        { "sip:b%C3%BCrgermeister@example.com", "sip:b\u00FCrgermeister@example.com" },
        { "sip:%e2%82%ac%F0%9F%98%80", "sip:\u20AC\U0001F600" },
        { "http://b%C3%BCcher.example/%C3%BC?%C3%BC#%C3%BC", "http://b\u00FCcher.example/\u00FC?\u00FC#\u00FC" },
        { "sip:a%C3%BC%40%2F%20%00%25%41", "sip:a\u00FC%40%2F%20%00%25%41" },                 // ASCII, reserved or not
        { "sip:%C2%80%C2%9F%C2%A0", "sip:%C2%80%C2%9F\u00A0" },                               // control characters
        { "sip:%E2%80%8E%E2%80%AE%D8%9C%E2%81%A9", "sip:%E2%80%8E%E2%80%AE%D8%9C%E2%81%A9" }, // bidirectional formats
        { "sip:\u200F\u202Ax", "sip:%E2%80%8F%E2%80%AAx" },
        { "sip:%EF%BF%BD%EF%B7%90%F3%A0%80%81", "sip:%EF%BF%BD%EF%B7%90%F3%A0%80%81" }, // U+FFFD, nonchar, tag
        { "x:%EE%80%80?%EE%80%80?#%EE%80%80?%EE%80%80", "x:%EE%80%80?\uE000?#%EE%80%80?%EE%80%80" }, // private use
        // What is no UTF-8 stays.
        { "x:%BC%C3%C3%BC%C3", "x:%BC%C3\u00FC%C3" },
        { "x:%C3\u00BC", "x:%C3\u00BC" },
        { "x:%E2%82%C3%BC", "x:%E2%82\u00FC" },
        { "x:%ED%A0%80%F4%90%80%80%C1%81%FF", "x:%ED%A0%80%F4%90%80%80%C1%81%FF" },
        { "", "(null)" },
        { "sip:%C3%B", "(null)" },
        { "x:\uE000", "(null)" },
        { "http://[v1.%C3%BC]/", "(null)" },
    };
    for( const auto &[ text, converted ] : cases )
        EXPECT_EQ( Take( iriTryConvertFromUri( Str( text ).Get() ) ), converted ) << text;
}

std::string FromUri( std::string_view uri ) { return Take( iriTryConvertFromUri( Str( uri ).Get() ) ); }

// Private characters may stand in a query alone (RFC 3987 section 2.2), which a "?" in a fragment does not begin.
TEST( IriConvert, KnowsWhereTheQueryIs )
{
    EXPECT_EQ( FromUri( "x:%EE%80%80" ), "x:%EE%80%80" );
    EXPECT_EQ( FromUri( "x:?%EE%80%80" ), "x:?\uE000" );
    EXPECT_EQ( FromUri( "x:?#%EE%80%80" ), "x:?#%EE%80%80" );
    EXPECT_EQ( FromUri( "x:#?%EE%80%80" ), "x:#?%EE%80%80" );
}

TEST( IriConvert, ToUriEscapesWhatIsBeyondAscii )
{
    static constexpr Case cases[] = {
        { "sip:b\u00FCrgermeister@b\u00FCcher.example", "sip:b%C3%BCrgermeister@b%C3%BCcher.example" }, // no IDNA
        { "x:\u00A0\u20AC\U0001F600?\U0010FFFD", "x:%C2%A0%E2%82%AC%F0%9F%98%80?%F4%8F%BF%BD" },
        { "x:%c3%bc\u00FC", "x:%c3%bc%C3%BC" },
        { "x:%c3%bc\u00FC%", "(null)" },
        { "", "(null)" },
    };
    for( const auto &[ text, converted ] : cases )
        EXPECT_EQ( Take( iriTryConvertToUri( Str( text ).Get() ) ), converted ) << text;
}

TEST( IriConvert, TextThatStaysIsTheSameObject )
{
    for( const char *text : { "sip:alice@example.com", "sip:a%20b%C3", "sip:\u00FC%41" } ) {
        auto    string = Str( text );
        pb::Ref iri{ iriTryConvertFromUri( string.Get() ) };
        EXPECT_EQ( iri.Get(), string.Get() ) << text;
    }
    auto    string = Str( "sip:a%20b%C3%BC" );
    pb::Ref uri{ iriTryConvertToUri( string.Get() ) };
    EXPECT_EQ( uri.Get(), string.Get() );
}

// Any text, from pieces that are apt to go wrong side by side.
std::string RandomText( std::mt19937 &random )
{
    static constexpr const char *pieces[] = {
        "a",   "?",   "#",      "/",   "[", "%",  "%C3",    "%BC",    "%E2",    "%80",    "%8E",        "%EE",
        "%F3", "%B0", "%c3%bc", "%41", "@", "//", "\u00FC", "\u200E", "\uE000", "\u20AC", "\U000F0000", "%ED%A0%80" };
    std::string text = "x:";
    for( auto count = random() % 9; count > 0; --count ) text += pieces[ random() % std::size( pieces ) ];
    return text;
}

TEST( IriConvert, WhatIsConvertedIsValidAndStable )
{
    std::mt19937 random{ 1 };
    int          valid = 0;
    for( int round = 0; round < 100'000; ++round ) {
        const std::string text   = RandomText( random );
        auto              string = Str( text );
        pb::Ref           iri{ iriTryConvertFromUri( string.Get() ) };
        pb::Ref           direct{ iriTryConvertToUri( string.Get() ) };
        ASSERT_EQ( bool( iri ), iriGensValidatePart( IRI_GENS_PART_IRI, string.Get() ) ) << text;
        ASSERT_EQ( bool( iri ), bool( direct ) ) << text;
        if( !iri ) continue;

        ++valid;
        ASSERT_TRUE( iriGensValidatePart( IRI_GENS_PART_IRI, iri.Get() ) ) << text;
        pb::Ref uri{ iriTryConvertToUri( iri.Get() ) };
        pb::Ref iriAgain{ iriTryConvertFromUri( uri.Get() ) };
        pb::Ref iriTwice{ iriTryConvertFromUri( iri.Get() ) };
        ASSERT_EQ( Text( iriAgain.Get() ), Text( iri.Get() ) ) << text;
        ASSERT_EQ( Text( iriTwice.Get() ), Text( iri.Get() ) ) << text;
        for( PbChar ch : Chars( Text( uri.Get() ) ) ) ASSERT_LT( ch, 0x80 ) << text;
    }
    EXPECT_GT( valid, 10'000 );
}

TEST( IriConvert, LongTextTakesLinearTime )
{
    for( const char *piece : { "%C3", "%E2%82%AC", "%F0%90", "\u20AC", "[", ":", "\u200E" } ) {
        std::string text = "x:";
        for( int count = 0; count < 500'000; ++count ) text += piece;
        pb::Ref iri{ iriTryConvertFromUri( Str( text ).Get() ) };
        pb::Ref uri{ iriTryConvertToUri( iri.Get() ) };
        EXPECT_GE( pbStringLength( uri.Get() ), 500'000 ) << piece;
    }
}

TEST( IriDeathTest, MisuseAborts )
{
    EXPECT_ABORT( "text", iriGensValidatePart( IRI_GENS_PART_IRI, nullptr ) );
    EXPECT_ABORT( "part == IRI_GENS_PART_IRI", iriGensValidatePart( 1, Str( "x:" ).Get() ) );
    EXPECT_ABORT( "uri", iriTryConvertFromUri( nullptr ) );
    EXPECT_ABORT( "iri", iriTryConvertToUri( nullptr ) );
}

} // namespace
