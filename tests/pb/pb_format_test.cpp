// The format language, and integers to and from text.
#include "pb/pb_format.h"

#include "text.h"

#include <gmock/gmock.h>

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

TEST( Format, AbortsOnWhatItDoesNotKnow )
{
    for( const char *format : { "%x", "%", "%5", "%A", "%!16x", "%.i" } )
        EXPECT_DEATH( pbStringCreateFromFormatCstr( format, -1, I( 0 ), I( 0 ) ), "the conversion is known" ) << format;
    for( const char *format : { "%!1i", "%!37i", "%!i" } )
        EXPECT_DEATH( pbStringCreateFromFormatCstr( format, -1, I( 0 ) ), "conversion.base >= 2" ) << format;
    EXPECT_DEATH( pbStringCreateFromFormatCstr( "%s", -1, nullptr ), "\"argument\"" );
    EXPECT_DEATH( pbStringCreateFromFormatCstr( "%99999999999999999999i", -1, I( 0 ) ), "\"number <= maxWidth\"" );
    EXPECT_DEATH( pbStringCreateFromFormat( nullptr ), "\"format\"" );
    EXPECT_DEATH( pbStringCreateFromFormatCstr( nullptr, -1 ), "\"format \\|\\| length == 0\"" );
}

TEST( FormatInt, EncodesWithWidthAndFlags )
{
    EXPECT_EQ( Take( pbFormatEncodeInt( 7, 10, 3, PB_FORMAT_FLAG_ZERO_PAD ) ), "007" );
    EXPECT_EQ( Take( pbFormatEncodeInt( 486, 10, 3, 2 ) ), "486" );
    EXPECT_EQ( Take( pbFormatEncodeInt( -7, 10, 0, 0 ) ), "-7" );
    EXPECT_EQ( Take( pbFormatEncodeInt( 0xBEEF, 16, 6, PB_FORMAT_FLAG_UPPER_CASE ) ), "  BEEF" );
    EXPECT_EQ( Take( pbFormatEncodeInt( INT64_MIN, 36, 0, 0 ) ), "-1y2p0ij32e8e8" );
    EXPECT_DEATH( pbFormatEncodeInt( 1, 1, 0, 0 ), "\"base >= 2 && base <= 36\"" );
    EXPECT_DEATH( pbFormatEncodeInt( 1, 10, -1, 0 ), "\"width >= 0\"" );
}

TEST( FormatInt, DecodesTheLongestIntegerThatFits )
{
    struct
    {
        const char *text;
        int64_t     radix;
        bool        found;
        int64_t     value, charsRead;
    } const rows[] = {
        { "", 10, false, -1, 0 },
        { "-", 10, false, -1, 0 },
        { "+1", 10, false, -1, 0 },
        { " 1", 10, false, -1, 0 },
        { "--1", 10, false, -1, 0 },
        { "x", 10, false, -1, 0 },
        { "0", 10, true, 0, 1 },
        { "007", 10, true, 7, 3 },
        { "-5", 10, true, -5, 2 },
        { "-05", 10, true, -5, 3 },
        { "-0", 10, false, -1, 0 },
        { "-00", 10, false, -1, 0 },
        { "12 ", 10, true, 12, 2 },
        { "12-3", 10, true, 12, 2 },
        { "0x10", 10, true, 0, 1 },
        { "\u0663", 10, false, -1, 0 }, // a digit, but not of ours
        { "9223372036854775807", 10, true, INT64_MAX, 19 },
        { "9223372036854775808", 10, false, -1, 0 },
        { "-9223372036854775808", 10, true, INT64_MIN, 20 },
        { "-9223372036854775809", 10, false, -1, 0 },
        { "18446744073709551617", 10, false, -1, 0 },
        { "99999999999999999999999999x", 10, false, -1, 0 },
        { "00000000000000000000000000000000000012", 10, true, 12, 38 },
        { "Ffg", 16, true, 255, 2 },
        { "7fffffffffffffff", 16, true, INT64_MAX, 16 },
        { "zZ{", 36, true, 1295, 2 },
        { "102", 2, true, 2, 2 },
        { "2", 2, false, -1, 0 },
        { "@`[", 36, false, -1, 0 },
    };
    for( const auto &row : rows ) {
        const auto chs   = Chars( row.text );
        int64_t    value = 99, charsRead = 99;
        EXPECT_EQ( pbFormatTryDecodeIntChars( chs.data(), int64_t( chs.size() ), row.radix, &value, &charsRead ),
                   row.found )
            << row.text;
        EXPECT_EQ( value, row.value ) << row.text;
        EXPECT_EQ( charsRead, row.charsRead ) << row.text;
        EXPECT_EQ( pbFormatTryDecodeIntChars( chs.data(), int64_t( chs.size() ), row.radix, nullptr, nullptr ),
                   row.found );
    }
    const PbChar one = '1';
    EXPECT_DEATH( pbFormatTryDecodeIntChars( &one, -1, 10, nullptr, nullptr ), "\"length >= 0\"" );
    EXPECT_DEATH( pbFormatTryDecodeIntChars( nullptr, 1, 10, nullptr, nullptr ), "\"chs \\|\\| length == 0\"" );
    EXPECT_DEATH( pbFormatTryDecodeIntChars( &one, 1, 37, nullptr, nullptr ), "\"radix >= 2 && radix <= 36\"" );
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
