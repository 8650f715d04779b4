// Strings: creation, growth and copy-on-write, parts, order, case, splitting.
#include "pb/pb_string.h"

#include "pb/pb_internal.h"
#include "text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

namespace {

using Pieces = std::vector< std::string >;

pb::Ref< PbString > CodePoints( std::initializer_list< PbChar > chs )
{
    return pb::Ref{ pbStringCreateFromCharsCopy( chs.begin(), int64_t( chs.size() ) ) };
}

std::vector< PbChar > CodePoints( PbString *string )
{
    return { pbStringBacking( string ), pbStringBacking( string ) + pbStringLength( string ) };
}

Pieces Texts( PbVector *owned )
{
    pb::Ref vector{ owned };
    Pieces  texts;
    for( int64_t i = 0; i < pbVectorLength( vector.Get() ); ++i )
        texts.push_back( Take( pbVectorStringAt( vector.Get(), i ) ) );
    return texts;
}

// ---- Creation --------------------------------------------------------------------------------------

TEST( String, IsCreatedFromEveryKindOfText )
{
    const PbChar chs[] = { 'a', 0xE9, 0x1F600 };
    EXPECT_EQ( Take( pbStringCreate() ), "" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "a\u00E9\U0001F600", -1 ) ), "a\u00E9\U0001F600" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "abc", 2 ) ), "ab" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( nullptr, 0 ) ), "" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "a\0b", 3 ) ), std::string( "a\0b", 3 ) );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "a\xFF"
                                             "b",
                                             -1 ) ),
               "a\uFFFDb" );
    EXPECT_EQ( Take( pbStringCreateFromWcstr( L"a\u00E9\U0001F600", -1 ) ), "a\u00E9\U0001F600" );
    EXPECT_EQ( Take( pbStringCreateFromWcstr( L"abc", 2 ) ), "ab" );
    EXPECT_EQ( Take( pbStringCreateFromCharsCopy( chs, 3 ) ), "a\u00E9\U0001F600" );
    EXPECT_EQ( Take( pbStringCreateFromCharsCopy( nullptr, 0 ) ), "" );
}

TEST( String, FromCharactersOrAsciiHasNoSlack )
{
    const auto chs = Chars( std::string( 1000, 'x' ) );
    pb::Ref    copy{ pbStringCreateFromCharsCopy( chs.data(), 1000 ) };
    pb::Ref    decoded{ pbStringCreateFromCstr( std::string( 1000, 'x' ).c_str(), -1 ) };
    EXPECT_EQ( copy.Get()->capacity, 1000 );
    EXPECT_EQ( decoded.Get()->capacity, 1000 );

    std::string threeBytesEach;
    for( int i = 0; i < 1000; ++i ) threeBytesEach += "\u20AC";
    pb::Ref trimmed{ pbStringCreateFromCstr( threeBytesEach.c_str(), -1 ) };
    EXPECT_EQ( trimmed.Get()->capacity, 1000 );
}

TEST( String, TakesOnlyWellFormedBytesWhereAsked )
{
    const auto bytes = []( const char *text ) { return reinterpret_cast< const PbByte * >( text ); };
    EXPECT_EQ( Take( pb___StringTryCreateFromUtf8( bytes( "a\u00E9" ), 3 ) ), "a\u00E9" );
    EXPECT_EQ( pb___StringTryCreateFromUtf8( bytes( "a\u00E9" ), 2 ), nullptr );

    auto string = Str( "x" );
    EXPECT_TRUE( pb___StringTryAppendUtf8( string.Slot(), bytes( "\u00E9y" ), 3 ) );
    EXPECT_FALSE( pb___StringTryAppendUtf8( string.Slot(), bytes( "zz\xC3" ), 3 ) );
    EXPECT_EQ( Text( string.Get() ), "x\u00E9y" );
}

// ---- Appending -------------------------------------------------------------------------------------

TEST( String, GrowsByEveryAppend )
{
    auto string = Str( "" );
    auto tail   = Str( "tail" );
    pbStringDelimitedAppendCharDelimiter( string.Slot(), ',', tail.Get() );
    pbStringDelimitedAppendCharDelimiter( string.Slot(), ',', tail.Get() );
    EXPECT_EQ( Text( string.Get() ), "tail,tail" );
    pbStringAppendChar( string.Slot(), 0x20AC );
    pbStringAppendChars( string.Slot(), pbStringBacking( tail.Get() ), 2 );
    pbStringAppendCstr( string.Slot(), "\u00E9x", -1 );
    pbStringAppend( string.Slot(), tail.Get() );
    EXPECT_EQ( Text( string.Get() ), "tail,tail\u20ACta\u00E9xtail" );
    EXPECT_EQ( Text( tail.Get() ), "tail" );
}

TEST( String, AppendsItself )
{
    const std::string text( 40, 'x' );
    for( const bool shared : { false, true } ) {
        auto    string = Str( text );
        pb::Ref holder{ shared ? pb::Retain( string.Get() ) : nullptr };
        pbStringAppend( string.Slot(), string.Get() );
        EXPECT_EQ( Text( string.Get() ), text + text );
        pbStringAppendChars( string.Slot(), pbStringBacking( string.Get() ) + 79, 1 );
        EXPECT_EQ( Text( string.Get() ), text + text + "x" );
        if( shared ) {
            EXPECT_EQ( Text( holder.Get() ), text );
        }

        string = Str( "ab" );
        holder = pb::Ref{ shared ? pb::Retain( string.Get() ) : nullptr };
        pbStringDelimitedAppendCharDelimiter( string.Slot(), ',', string.Get() );
        EXPECT_EQ( Text( string.Get() ), "ab,ab" );
    }
}

TEST( String, IsCopiedWhenItIsSharedAndChangedInPlaceWhenNot )
{
    auto      string = Str( "shared" );
    pb::Ref   holder{ pb::Retain( string.Get() ) };
    PbString *before = string.Get();
    pbStringAppendChar( string.Slot(), '!' );
    EXPECT_NE( string.Get(), before );
    EXPECT_EQ( before->obj.count, 1u );
    EXPECT_EQ( Text( holder.Get() ), "shared" );
    EXPECT_EQ( Text( string.Get() ), "shared!" );

    int moves = 0;
    for( int i = 0; i < 100'000; ++i ) {
        const int64_t capacity = string.Get()->capacity;
        pbStringAppendChar( string.Slot(), 'x' );
        moves += string.Get()->capacity != capacity;
    }
    EXPECT_LT( moves, 20 );
}

TEST( String, CopyIsItsOwnObject )
{
    auto    string = Str( "text" );
    pb::Ref copy{ pbStringCreateFrom( string.Get() ) };
    EXPECT_NE( copy.Get(), string.Get() );
    EXPECT_TRUE( pbStringEquals( copy.Get(), string.Get() ) );
    EXPECT_EQ( Take( pbStringToString( string.Get() ) ), "text" );
}

// ---- Parts, order ----------------------------------------------------------------------------------

TEST( String, GivesItsParts )
{
    auto string = Str( "abcdef" );
    EXPECT_EQ( Take( pbStringInner( string.Get(), 2, 3 ) ), "cde" );
    EXPECT_EQ( Take( pbStringInner( string.Get(), 6, 0 ) ), "" );
    EXPECT_EQ( Take( pbStringInner( string.Get(), 0, 6 ) ), "abcdef" );
    EXPECT_EQ( Take( pbStringLeading( string.Get(), 2 ) ), "ab" );
    EXPECT_EQ( Take( pbStringTrailing( string.Get(), 2 ) ), "ef" );
    EXPECT_EQ( Take( pbStringOuter( string.Get(), 2, 3 ) ), "abf" );
    EXPECT_EQ( Take( pbStringOuter( string.Get(), 0, 6 ) ), "" );
    EXPECT_EQ( Take( pbStringOuter( string.Get(), 6, 0 ) ), "abcdef" );
    EXPECT_EQ( pbStringCharAt( string.Get(), 5 ), 'f' );
}

TEST( String, ComparesByCodePointThenLength )
{
    const char *ascending[] = { "", "A", "a", "aa", "ab", "b", "\u00E9", "\uFFFD", "\U00010000" };
    for( auto a = std::begin( ascending ); a != std::end( ascending ); ++a )
        for( auto b = std::begin( ascending ); b != std::end( ascending ); ++b ) {
            auto          stringA = Str( *a );
            auto          stringB = Str( *b );
            const int64_t order   = pbStringCompare( stringA.Get(), stringB.Get() );
            EXPECT_EQ( ( order > 0 ) - ( order < 0 ), ( a > b ) - ( a < b ) ) << *a << " and " << *b;
            EXPECT_EQ( pbStringEquals( stringA.Get(), stringB.Get() ), a == b );
            EXPECT_EQ( pbStringEqualsCstr( stringA.Get(), *b, -1 ), a == b ) << *a << " and " << *b;
            EXPECT_EQ( pbStringEqualsChars( stringA.Get(), stringB.Get()->chs, stringB.Get()->length ), a == b );
        }
    EXPECT_TRUE( pbStringEqualsCstr( Str( "a\uFFFD" ).Get(), "a\xFFzz", 2 ) );
}

// ---- Case ------------------------------------------------------------------------------------------

TEST( String, MapsCaseAsUnicodeDoes )
{
    struct
    {
        const char *text, *lower, *upper;
    } const rows[] = {
        { "", "", "" },
        { "@AZ[`az{ 09", "@az[`az{ 09", "@AZ[`AZ{ 09" },
        { "Content-ID", "content-id", "CONTENT-ID" },
        { "Stra\u00DFe", "stra\u00DFe", "STRASSE" },
        { "\u0130", "i\u0307", "\u0130" },
        { "\u039F\u03A3 \u039F\u03A3\u039F", "\u03BF\u03C2 \u03BF\u03C3\u03BF", "\u039F\u03A3 \u039F\u03A3\u039F" },
        { "A\u65E5\u672C", "a\u65E5\u672C", "A\u65E5\u672C" },
        { "e\u0301\u00C9", "e\u0301\u00E9", "E\u0301\u00C9" }, // no normalisation
    };
    for( const auto &row : rows ) {
        auto string = Str( row.text );
        pbStringToLower( string.Slot() );
        EXPECT_EQ( Text( string.Get() ), row.lower );
        string = Str( row.text );
        pbStringToUpper( string.Slot() );
        EXPECT_EQ( Text( string.Get() ), row.upper );
    }
}

TEST( String, KeepsWhatIsNoUnicodeWhenItMapsCase )
{
    auto string = CodePoints( { 0xD800, 'A', 0xC9, -1, 0xDFFF, 'B', 0x110000, 0x7FFFFFFF } );
    pbStringToLower( string.Slot() );
    EXPECT_EQ( CodePoints( string.Get() ),
               ( std::vector< PbChar >{ 0xD800, 'a', 0xE9, -1, 0xDFFF, 'b', 0x110000, 0x7FFFFFFF } ) );
}

TEST( String, IsNotCopiedWhenItsCaseNeedsNoChange )
{
    for( const char *text : { "already lower 1", "d\u00E9j\u00E0" } ) {
        auto    string = Str( text );
        pb::Ref holder{ pb::Retain( string.Get() ) };
        pbStringToLower( string.Slot() );
        EXPECT_EQ( string.Get(), holder.Get() );
        pbStringToUpper( string.Slot() );
        EXPECT_NE( string.Get(), holder.Get() );
        EXPECT_EQ( Text( holder.Get() ), text );
    }
}

// ---- Splitting, numbers ----------------------------------------------------------------------------

TEST( String, SplitsAtOneCharacter )
{
    struct
    {
        const char *text;
        int64_t     limit;
        Pieces      pieces;
    } const rows[] = {
        { "", -1, { "" } },
        { "abc", -1, { "abc" } },
        { "a:b:c", -1, { "a", "b", "c" } },
        { ":a::", -1, { "", "a", "", "" } },
        { "a:b:c", 2, { "a", "b:c" } },
        { "a:b:c", 1, { "a:b:c" } },
        { "a:b", 3, { "a", "b" } },
    };
    for( const auto &row : rows )
        EXPECT_EQ( Texts( pbStringSplitChar( Str( row.text ).Get(), ':', row.limit ) ), row.pieces ) << row.text;
}

TEST( String, SplitsAtLineEnds )
{
    struct
    {
        const char *text, *at;
        int64_t     limit;
        Pieces      pieces;
    } const rows[] = {
        { "", "\r\n", -1, { "" } },
        { "a\r\nb", "\r\n", -1, { "a", "b" } },
        { "a\rb\nc", "\r\n", -1, { "a", "b", "c" } },
        { "a\r\n\r\nb", "\n\r", -1, { "a", "", "b" } },
        { "a\n\rb", "\r\n", -1, { "a", "", "b" } },
        { "a\r\r\nb\r", "\r\n", -1, { "a", "", "b", "" } },
        { "\r\n", "\r\n", -1, { "", "" } },
        { "a\r\nb\r\nc", "\r\n", 2, { "a", "b\r\nc" } },
        { "a\r\nb", "\r", -1, { "a", "\nb" } },
        { "a\r\nb", "\n", -1, { "a\r", "b" } },
        { "a;\u20ACb,c", ",\u20AC;", -1, { "a", "", "b", "c" } },
        { "abc", "", -1, { "abc" } },
    };
    for( const auto &row : rows ) {
        const auto chs = Chars( row.at );
        EXPECT_EQ( Texts( pbStringSplitChars( Str( row.text ).Get(), chs.data(), int64_t( chs.size() ), row.limit ) ),
                   row.pieces )
            << row.text;
    }
}

TEST( String, ScansIntegersInItsMiddle )
{
    auto    string = Str( "ab-12cd" );
    int64_t value = 0, charsRead = 0;
    EXPECT_TRUE( pbStringScanInt( string.Get(), 2, -1, 10, &value, &charsRead ) );
    EXPECT_EQ( value, -12 );
    EXPECT_EQ( charsRead, 3 );
    EXPECT_TRUE( pbStringScanInt( string.Get(), 3, 1, 10, &value, nullptr ) );
    EXPECT_EQ( value, 1 );
    EXPECT_FALSE( pbStringScanInt( string.Get(), 7, -1, 10, nullptr, nullptr ) );
}

// ---- Misuse ----------------------------------------------------------------------------------------

TEST( String, AbortsOnMisuse )
{
    auto      string = Str( "abc" );
    PbString *s      = string.Get();
    PbString *none   = nullptr;
    PbChar    ch     = 'x';
    EXPECT_DEATH( pbStringLength( nullptr ), "source/pb/pb_string:[0-9]+: condition \"string\" failed\n" );
    EXPECT_DEATH( pbStringAppend( nullptr, s ), "\"string\"" );
    EXPECT_DEATH( pbStringAppend( &none, s ), "\"\\*string\"" );
    EXPECT_DEATH( pbStringAppend( &s, none ), "\"tail\"" );
    EXPECT_DEATH( pbStringAppendChars( &s, &ch, -1 ), "\"length >= 0\"" );
    EXPECT_DEATH( pbStringAppendChars( &s, nullptr, 1 ), "\"chs \\|\\| length == 0\"" );
    EXPECT_DEATH( pbStringAppendChars( &s, &ch, INT64_MAX ), "\"count <= maxLength - string->length\"" );
    EXPECT_DEATH( pbStringCreateFromCharsCopy( &ch, -1 ), "\"length >= 0\"" );
    EXPECT_DEATH( pbStringCreateFromCharsCopy( &ch, INT64_MAX ), "\"capacity <= maxLength\"" );
    EXPECT_DEATH( pbStringCreateFromCstr( "x", -2 ), "\"length >= 0\"" );
    EXPECT_DEATH( pbStringCreateFromCstr( nullptr, -1 ), "\"text \\|\\| length == 0\"" );
    EXPECT_DEATH( pbStringCharAt( s, -1 ), "\"index >= 0\"" );
    EXPECT_DEATH( pbStringCharAt( s, 3 ), "\"index < string->length\"" );
    EXPECT_DEATH( pbStringInner( s, 1, 3 ), "\"count <= string->length - index\"" );
    EXPECT_DEATH( pbStringOuter( s, 4, 0 ), "\"index <= string->length\"" );
    EXPECT_DEATH( pbStringLeading( s, 4 ), "\"count <= string->length\"" );
    EXPECT_DEATH( pbStringTrailing( s, -1 ), "\"count >= 0\"" );
    EXPECT_DEATH( pbStringSplitChar( s, ',', 0 ), "\"limit == -1 \\|\\| limit > 0\"" );
    EXPECT_DEATH( pbStringScanInt( s, 4, -1, 10, nullptr, nullptr ), "\"position <= string->length\"" );
    EXPECT_DEATH( pbStringScanInt( s, 1, 3, 10, nullptr, nullptr ), "\"length <= string->length - position\"" );
    EXPECT_DEATH( pbStringEquals( none, s ), "\"a\"" );
    EXPECT_DEATH( pbStringEquals( s, none ), "\"b\"" );
}

} // namespace
