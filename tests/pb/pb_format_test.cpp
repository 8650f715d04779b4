// The format language, and integers to and from text.
#include "pb/pb_format.h"

#include "text.h"

#include <cerrno>
#include <cstdlib>
#include <random>

namespace {

constexpr int64_t I( int64_t value ) { return value; }

// The same conversions from a format of bytes, of wide characters and of a string.
template< class... Arguments >
void ExpectFormat( const char *expected, const char *format, const wchar_t *wide, Arguments... arguments )
{
    EXPECT_EQ( Take( pbStringCreateFromFormatCstr( format, -1, arguments... ) ), expected ) << format;
    EXPECT_EQ( Take( pbStringCreateFromFormatWcstr( wide, -1, arguments... ) ), expected ) << format;
    EXPECT_EQ( Take( pbStringCreateFromFormat( Str( format ).Get(), arguments... ) ), expected ) << format;
}
#define EXPECT_FORMAT( expected, format, ... ) ExpectFormat( expected, format, L##format __VA_OPT__(, ) __VA_ARGS__ )

TEST( Format, ConvertsIntegers )
{
    EXPECT_FORMAT( "", "" );
    EXPECT_FORMAT( "100%", "100%%" );
    EXPECT_FORMAT( "0 7 -7", "%i %i %i", I( 0 ), I( 7 ), I( -7 ) );
    EXPECT_FORMAT( "9223372036854775807", "%i", INT64_MAX );
    EXPECT_FORMAT( "-9223372036854775808", "%i", INT64_MIN );
    EXPECT_FORMAT( "    7|   -7|123456", "%5i|%5i|%5i", I( 7 ), I( -7 ), I( 123456 ) );
    EXPECT_FORMAT( "00007|-0007|123456", "%05i|%05i|%05i", I( 7 ), I( -7 ), I( 123456 ) );
    EXPECT_FORMAT( "         7", "%10i", I( 7 ) );
    EXPECT_FORMAT( "ff|FF|-FF", "%!16i|%^!16i|%^!16i", I( 255 ), I( 255 ), I( -255 ) );
    EXPECT_FORMAT( "0000ff|0000FF|  zz", "%06!16i|%0^6!16i|%4!36i", I( 255 ), I( 255 ), I( 35 * 37 ) );
    EXPECT_FORMAT( "-1000000000000000000000000000000000000000000000000000000000000000", "%!2i", INT64_MIN );
    EXPECT_FORMAT( "7%8", "%~i%~%%i", I( 7 ), I( 8 ) );
}

TEST( Format, PadsAnIndexToTheWidthOfTheHighest )
{
    EXPECT_FORMAT( "0|9", "%.*A|%.*A", I( 9 ), I( 0 ), I( 9 ), I( 9 ) );
    EXPECT_FORMAT( "00|09|10", "%.*A|%.*A|%~.*A", I( 10 ), I( 0 ), I( 10 ), I( 9 ), I( 10 ), I( 10 ) );
    EXPECT_FORMAT( "0042", "%.*A", I( 1000 ), I( 42 ) );
    EXPECT_FORMAT( "0", "%.*A", I( 0 ), I( 0 ) );
}

TEST( Format, InsertsStringsAndKeepsLiteralText )
{
    auto a = Str( "\u00E9a" );
    EXPECT_FORMAT( "\u00E9a", "%s", a.Get() );
    EXPECT_FORMAT( "\u20AC\u00E9a;\U0001F600\u00E9a\u20AC", "\u20AC%s;\U0001F600%s\u20AC", a.Get(), a.Get() );
    EXPECT_EQ( a.Get()->obj.count, 1u );
    EXPECT_EQ( Take( pbStringCreateFromFormatCstr( "%i%i", 2, I( 7 ) ) ), "7" );
    EXPECT_EQ( Take( pbStringCreateFromFormatCstr( nullptr, 0 ) ), "" );
}

TEST( Format, ReleasesWhatItIsGiven )
{
    auto given = Str( "q" );
    EXPECT_EQ( Take( pbStringCreateFromFormatCstr( "<%~s>", -1, pb::Retain( given.Get() ) ) ), "<q>" );
    EXPECT_EQ( given.Get()->obj.count, 1u );
}

TEST( Format, Appends )
{
    auto    string = Str( "a" );
    pb::Ref holder{ pb::Retain( string.Get() ) };
    pbStringAppendFormatCstr( string.Slot(), ";q=%03i", -1, I( 5 ) );
    pbStringAppendFormat( string.Slot(), Str( "[%~s]" ).Get(), Str( "x" ).Detach() );
    EXPECT_EQ( Text( string.Get() ), "a;q=005[x]" );
    EXPECT_EQ( Text( holder.Get() ), "a" );
}

TEST( Format, MayHaveTheStringItAppendsToAsArgumentAndAsFormat )
{
    auto string = Str( "ab" ); // no room left: it moves while it grows
    pbStringAppendFormatCstr( string.Slot(), "<%s|%s>", -1, string.Get(), string.Get() );
    EXPECT_EQ( Text( string.Get() ), "ab<ab|ab>" );

    string = Str( "ab" );
    pbStringAppendFormatCstr( string.Slot(), "<%~s|%s>", -1, pb::Retain( string.Get() ), string.Get() );
    EXPECT_EQ( Text( string.Get() ), "ab<ab|ab>" );
    EXPECT_EQ( string.Get()->obj.count, 1u );

    string = Str( "%i%i;" );
    pbStringAppendFormat( string.Slot(), string.Get(), I( 1 ), I( 2 ) );
    EXPECT_EQ( Text( string.Get() ), "%i%i;12;" );
}

TEST( FormatDeathTest, AbortsOnWhatItDoesNotKnow )
{
    for( const char *format : { "%x", "%", "%5", "%A", "%!16x", "%.i" } )
        EXPECT_ABORT( "the conversion is known", pbStringCreateFromFormatCstr( format, -1, I( 0 ), I( 0 ) ) ) << format;
    for( const char *format : { "%!1i", "%!37i", "%!i" } )
        EXPECT_ABORT( "conversion.base >= 2 && conversion.base <= 36",
                      pbStringCreateFromFormatCstr( format, -1, I( 0 ) ) )
            << format;
    EXPECT_ABORT( "argument", pbStringCreateFromFormatCstr( "%s", -1, nullptr ) );
    EXPECT_ABORT( "number <= maxWidth", pbStringCreateFromFormatCstr( "%99999999999999999999i", -1, I( 0 ) ) );
    EXPECT_ABORT( "number <= maxWidth", pbStringCreateFromFormatCstr( "%1000001i", -1, I( 0 ) ) );
    EXPECT_ABORT( "format", pbStringCreateFromFormat( nullptr ) );
    EXPECT_ABORT( "format || length == 0", pbStringCreateFromFormatCstr( nullptr, -1 ) );
}

TEST( FormatInt, EncodesWithWidthAndFlags )
{
    EXPECT_EQ( Take( pbFormatEncodeInt( 7, 10, 3, PB_FORMAT_FLAG_ZERO_PAD ) ), "007" );
    EXPECT_EQ( Take( pbFormatEncodeInt( 0xBEEF, 16, 6, PB_FORMAT_FLAG_UPPER_CASE ) ), "  BEEF" );
    EXPECT_EQ( Take( pbFormatEncodeInt( INT64_MIN, 36, 0, 0 ) ), "-1y2p0ij32e8e8" );
    EXPECT_ABORT( "base >= 2 && base <= 36", pbFormatEncodeInt( 1, 1, 0, 0 ) );
    EXPECT_ABORT( "width >= 0", pbFormatEncodeInt( 1, 10, -1, 0 ) );
}

// The C library reads the same, but for a sign, blanks or "0x" in front, and for zero below zero.
TEST( FormatInt, DecodesAsTheCLibraryDoes )
{
    static constexpr const char *pieces[] = { "-", "0", "1", "9", "a", "F", "g", "Z", "{", "@", "922337203685477580",
                                              "7", "8" };
    std::mt19937                 random{ 1 };
    for( int round = 0; round < 100'000; ++round ) {
        std::string text;
        for( auto count = random() % 5; count > 0; --count ) text += pieces[ random() % std::size( pieces ) ];
        const int radix = round % 2 ? 10 : int( 2 + random() % 35 );

        errno                   = 0;
        char         *end       = nullptr;
        const int64_t number    = std::strtoll( text.c_str(), &end, radix );
        const bool    expected  = end != text.c_str() && errno == 0 && ( number != 0 || text[ 0 ] != '-' );
        const auto    chs       = Chars( text );
        int64_t       value     = 99;
        int64_t       charsRead = 99;
        ASSERT_EQ( pbFormatTryDecodeIntChars( chs.data(), int64_t( chs.size() ), radix, &value, &charsRead ), expected )
            << text << " in " << radix;
        ASSERT_EQ( value, expected ? number : -1 ) << text << " in " << radix;
        ASSERT_EQ( charsRead, expected ? end - text.c_str() : 0 ) << text;
    }
    for( const char *text : { "+1", " 1", "\u0663" } )
        EXPECT_FALSE( pbFormatTryDecodeIntChars( Chars( text ).data(), 2, 10, nullptr, nullptr ) ) << text;
    EXPECT_TRUE( pbFormatTryDecodeIntChars( Chars( "0x1" ).data(), 3, 16, nullptr, nullptr ) );

    const PbChar one = '1';
    EXPECT_ABORT( "length >= 0", pbFormatTryDecodeIntChars( &one, -1, 10, nullptr, nullptr ) );
    EXPECT_ABORT( "chs || length == 0", pbFormatTryDecodeIntChars( nullptr, 1, 10, nullptr, nullptr ) );
    EXPECT_ABORT( "radix >= 2 && radix <= 36", pbFormatTryDecodeIntChars( &one, 1, 37, nullptr, nullptr ) );
}

TEST( FormatInt, ReadsWhatItWrites )
{
    for( int64_t base = 2; base <= 36; ++base )
        for( const int64_t value : { INT64_MIN, INT64_MIN + 1, I( -1 ), I( 0 ), base - 1, base, INT64_MAX } ) {
            pb::Ref text{ pbFormatEncodeInt( value, base, 0, base % 2 ) };
            int64_t read = 0, charsRead = 0;
            EXPECT_TRUE( pbStringScanInt( text.Get(), 0, -1, base, &read, &charsRead ) );
            EXPECT_EQ( read, value );
            EXPECT_EQ( charsRead, pbStringLength( text.Get() ) );
        }
}

} // namespace
