// Strings: creation, growth and copy-on-write, parts, order, case, splitting.
#include "pb/pb_string.h"

#include "pb/pb_internal.h"
#include "text.h"

#include <random>
#include <vector>

namespace {

std::string Joined( PbVector *owned )
{
    pb::Ref     vector{ owned };
    std::string text;
    for( int64_t i = 0; i < pbVectorLength( vector.Get() ); ++i )
        text += ( i > 0 ? "|" : "" ) + Take( pbVectorStringAt( vector.Get(), i ) );
    return text;
}

// ---- Creation, appending ---------------------------------------------------------------------------

TEST( String, IsCreatedFromEveryKindOfText )
{
    const PbChar chs[] = { 'a', 0xE9, 0x1F600 };
    EXPECT_EQ( Take( pbStringCreate() ), "" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "a\u00E9\U0001F600", -1 ) ), "a\u00E9\U0001F600" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "abc", 2 ) ), "ab" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( nullptr, 0 ) ), "" );
    EXPECT_EQ( Take( pbStringCreateFromCstr( "a\0\xFF", 3 ) ), std::string( "a\0\uFFFD", 5 ) );
    EXPECT_EQ( Take( pbStringCreateFromWcstr( L"a\u00E9\U0001F600", -1 ) ), "a\u00E9\U0001F600" );
    EXPECT_EQ( Take( pbStringCreateFromWcstr( L"abc", 2 ) ), "ab" );
    EXPECT_EQ( Take( pbStringCreateFromCharsCopy( chs, 3 ) ), "a\u00E9\U0001F600" );
    EXPECT_EQ( Take( pbStringCreateFromCharsCopy( nullptr, 0 ) ), "" );
}

TEST( String, HasNoSlackAfterItsCreation )
{
    std::string threeBytesEach;
    for( int i = 0; i < 1000; ++i ) threeBytesEach += "\u20AC";
    const auto chs = Chars( threeBytesEach );
    pb::Ref    copy{ pbStringCreateFromCharsCopy( chs.data(), 1000 ) };
    EXPECT_EQ( copy.Get()->capacity, 1000 );
    for( const std::string &text : { std::string( 1000, 'x' ), threeBytesEach } )
        EXPECT_EQ( Str( text ).Get()->capacity, 1000 );
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

// Random appends of other text, of single characters and of the string itself or its own characters; shared now and
// then, when the other holder must keep what it held.
TEST( String, BehavesLikeAString )
{
    std::mt19937 random{ 1 };
    auto         string = Str( "" );
    std::string  model;
    for( int step = 0; step < 20'000; ++step ) {
        const auto upTo = [ & ]( size_t limit ) { return random() % ( limit + 1 ); };
        if( model.size() > 400 ) {
            string = Str( "" );
            model.clear();
        }
        pb::Ref< PbString > holder;
        if( random() % 8 == 0 ) holder = pb::Ref{ pb::Retain( string.Get() ) };
        const std::string before = model;

        const std::string fresh( upTo( 40 ), char( 'a' + step % 26 ) );
        const pb::Ref     other  = Str( fresh );
        const bool        self   = random() % 4 == 0;
        PbString         *source = self ? string.Get() : other.Get();
        const std::string from   = self ? model : fresh;
        const size_t      count  = upTo( from.size() );
        const size_t      index  = upTo( from.size() - count );
        switch( random() % 5 ) {
        case 0:
            pbStringAppend( string.Slot(), source );
            model += from;
            break;
        case 1:
            pbStringAppendChars( string.Slot(), pbStringBacking( source ) + index, int64_t( count ) );
            model += from.substr( index, count );
            break;
        case 2:
            pbStringDelimitedAppendCharDelimiter( string.Slot(), ',', source );
            model += ( model.empty() ? "" : "," ) + from;
            break;
        case 3:
            pbStringAppendCstr( string.Slot(), fresh.c_str(), -1 );
            model += fresh;
            break;
        default: pbStringAppendChar( string.Slot(), '.' ); model += '.';
        }
        ASSERT_EQ( Text( string.Get() ), model );
        if( holder ) {
            ASSERT_EQ( Text( holder.Get() ), before );
        }
        const size_t  first = upTo( model.size() ), length = upTo( model.size() - first );
        const int64_t begin = int64_t( first ), size = int64_t( length );
        ASSERT_EQ( Take( pbStringInner( string.Get(), begin, size ) ), model.substr( first, length ) );
        ASSERT_EQ( Take( pbStringOuter( string.Get(), begin, size ) ), std::string( model ).erase( first, length ) );
        ASSERT_EQ( Take( pbStringLeading( string.Get(), size ) ), model.substr( 0, length ) );
        ASSERT_EQ( Take( pbStringTrailing( string.Get(), size ) ), model.substr( model.size() - length ) );
    }
}

TEST( String, GrowsSeldomAndIsCopiedOnlyWhenShared )
{
    auto      string = Str( "shared" );
    pb::Ref   holder{ pb::Retain( string.Get() ) };
    PbString *before = string.Get();
    pbStringAppendChar( string.Slot(), '!' );
    EXPECT_NE( string.Get(), before );
    EXPECT_EQ( before->obj.count, 1u );

    int moves = 0;
    for( int i = 0; i < 100'000; ++i ) {
        const int64_t capacity = string.Get()->capacity;
        pbStringAppendChar( string.Slot(), 'x' );
        moves += string.Get()->capacity != capacity;
    }
    EXPECT_LT( moves, 20 );

    pb::Ref copy{ pbStringCreateFrom( string.Get() ) };
    EXPECT_NE( copy.Get(), string.Get() );
    EXPECT_TRUE( pbStringEquals( copy.Get(), string.Get() ) );
}

// ---- Order -----------------------------------------------------------------------------------------

TEST( String, ComparesByCodePointThenLength )
{
    std::vector< pb::Ref< PbString > > ascending;
    for( const char *text : { "", "A", "a", "aa", "ab", "b", "\u00E9", "\uFFFD", "\U00010000" } )
        ascending.push_back( Str( text ) );
    ExpectAscending( ascending, pbStringCompare );

    for( const auto &a : ascending )
        for( const auto &b : ascending ) {
            const std::string text = Text( b.Get() );
            EXPECT_EQ( pbStringEquals( a.Get(), b.Get() ), &a == &b );
            EXPECT_EQ( pbStringEqualsCstr( a.Get(), text.c_str(), -1 ), &a == &b ) << text;
            EXPECT_EQ( pbStringEqualsChars( a.Get(), b.Get()->chs, b.Get()->length ), &a == &b );
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
        { "Stra\u00DFe", "stra\u00DFe", "STRASSE" },
        { "\u0130", "i\u0307", "\u0130" },
        { "\u039F\u03A3 \u039F\u03A3\u039F", "\u03BF\u03C2 \u03BF\u03C3\u03BF", "\u039F\u03A3 \u039F\u03A3\u039F" },
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
    const PbChar chs[]   = { 0xD800, 'A', 0xC9, -1, 0xDFFF, 'B', 0x110000, 0x7FFFFFFF };
    const PbChar lower[] = { 0xD800, 'a', 0xE9, -1, 0xDFFF, 'b', 0x110000, 0x7FFFFFFF };
    pb::Ref      string{ pbStringCreateFromCharsCopy( chs, 8 ) };
    pbStringToLower( string.Slot() );
    EXPECT_TRUE( pbStringEqualsChars( string.Get(), lower, 8 ) );
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

TEST( String, SplitsAtCharactersAndAtLineEnds )
{
    struct
    {
        const char *text, *at;
        int64_t     limit;
        const char *pieces; // with "|" between them
    } const rows[] = {
        { "", ":", -1, "" },
        { ":a::", ":", -1, "|a||" },
        { "a:b:c", ":", 2, "a|b:c" },
        { "a:b:c", ":", 1, "a:b:c" },
        { "a:b", ":", 3, "a|b" },
        { "a\r\n\r\nb", "\n\r", -1, "a||b" },
        { "a\n\rb\rc\n", "\r\n", -1, "a||b|c|" },
        { "a\r\r\nb\r", "\r\n", -1, "a||b|" },
        { "a\r\nb\r\nc", "\r\n", 2, "a|b\r\nc" },
        { "a\r\nb", "\r", -1, "a|\nb" },
        { "a\r\nb", "\n", -1, "a\r|b" },
        { "a;\u20ACb,c", ",\u20AC;", -1, "a||b|c" },
        { "abc", "", -1, "abc" },
    };
    for( const auto &row : rows ) {
        const auto    chs    = Chars( row.at );
        const auto    string = Str( row.text );
        const int64_t count  = int64_t( chs.size() );
        EXPECT_EQ( Joined( pbStringSplitChars( string.Get(), chs.data(), count, row.limit ) ), row.pieces ) << row.text;
        if( count == 1 ) {
            EXPECT_EQ( Joined( pbStringSplitChar( string.Get(), chs[ 0 ], row.limit ) ), row.pieces );
        }
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

TEST( StringDeathTest, MisuseAborts )
{
    auto      string = Str( "abc" );
    PbString *s      = string.Get();
    PbString *none   = nullptr;
    PbChar    ch     = 'x';
    EXPECT_ABORT( "string", pbStringLength( nullptr ) );
    EXPECT_ABORT( "*string", pbStringAppend( &none, s ) );
    EXPECT_ABORT( "length >= 0", pbStringAppendChars( &s, &ch, -1 ) );
    EXPECT_ABORT( "count <= maxLength - string->length", pbStringAppendChars( &s, &ch, INT64_MAX ) );
    EXPECT_ABORT( "capacity <= maxLength", pbStringCreateFromCharsCopy( &ch, INT64_MAX ) );
    EXPECT_ABORT( "length >= 0", pbStringCreateFromCstr( "x", -2 ) );
    EXPECT_ABORT( "index >= 0", pbStringCharAt( s, -1 ) );
    EXPECT_ABORT( "index < string->length", pbStringCharAt( s, 3 ) );
    EXPECT_ABORT( "count <= string->length - index", pbStringInner( s, 1, 3 ) );
    EXPECT_ABORT( "count <= string->length", pbStringLeading( s, 4 ) );
    EXPECT_ABORT( "count >= 0", pbStringTrailing( s, -1 ) );
    EXPECT_ABORT( "limit == -1 || limit > 0", pbStringSplitChar( s, ',', 0 ) );
    EXPECT_ABORT( "position >= 0", pbStringScanInt( s, -1, 1, 10, nullptr, nullptr ) );
    EXPECT_ABORT( "position <= string->length", pbStringScanInt( s, 4, -1, 10, nullptr, nullptr ) );
    EXPECT_ABORT( "length <= string->length - position", pbStringScanInt( s, 1, 3, 10, nullptr, nullptr ) );
}

} // namespace
