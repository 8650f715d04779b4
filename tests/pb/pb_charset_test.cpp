// UTF-8 both ways, against a plain reference; the upper-case mapping of characters.
#include "pb/pb_charset.h"

#include "pb/pb_internal.h"
#include "text.h"

#include <random>
#include <vector>

namespace {

using Bytes      = std::string;
using CodePoints = std::vector< PbChar >;

// ---- The reference ---------------------------------------------------------------------------------

bool IsScalar( PbChar ch ) { return ( ch >= 0 && ch < 0xD800 ) || ( ch > 0xDFFF && ch <= 0x10FFFF ); }

Bytes ReferenceEncode( const CodePoints &chs )
{
    Bytes bytes;
    for( PbChar ch : chs ) {
        if( !IsScalar( ch ) ) ch = 0xFFFD;
        const int following = ( ch >= 0x80 ) + ( ch >= 0x800 ) + ( ch >= 0x10000 );
        const int marks[]   = { 0, 0xC0, 0xE0, 0xF0 };
        bytes += char( marks[ following ] | ( ch >> ( 6 * following ) ) );
        for( int i = following - 1; i >= 0; --i ) bytes += char( 0x80 | ( ( ch >> ( 6 * i ) ) & 0x3F ) );
    }
    return bytes;
}

// Whether the bytes begin one of the well-formed sequences, as the Unicode standard lists them in its table 3-7.
bool BeginsSequence( const Bytes &bytes )
{
    static const std::vector< std::vector< std::pair< int, int > > > table = {
        { { 0x00, 0x7F } },
        { { 0xC2, 0xDF }, { 0x80, 0xBF } },
        { { 0xE0, 0xE0 }, { 0xA0, 0xBF }, { 0x80, 0xBF } },
        { { 0xE1, 0xEC }, { 0x80, 0xBF }, { 0x80, 0xBF } },
        { { 0xED, 0xED }, { 0x80, 0x9F }, { 0x80, 0xBF } },
        { { 0xEE, 0xEF }, { 0x80, 0xBF }, { 0x80, 0xBF } },
        { { 0xF0, 0xF0 }, { 0x90, 0xBF }, { 0x80, 0xBF }, { 0x80, 0xBF } },
        { { 0xF1, 0xF3 }, { 0x80, 0xBF }, { 0x80, 0xBF }, { 0x80, 0xBF } },
        { { 0xF4, 0xF4 }, { 0x80, 0x8F }, { 0x80, 0xBF }, { 0x80, 0xBF } },
    };
    return std::any_of( table.begin(), table.end(), [ & ]( const auto &row ) {
        if( bytes.size() > row.size() ) return false;
        for( size_t i = 0; i < bytes.size(); ++i )
            if( uint8_t( bytes[ i ] ) < row[ i ].first || uint8_t( bytes[ i ] ) > row[ i ].second ) return false;
        return true;
    } );
}

struct Decoded
{
    CodePoints chs;
    bool       wellFormed = true;
};

// Takes the longest beginning of a sequence; a complete one is the character that the reference encoding turns into it.
Decoded ReferenceDecode( const Bytes &bytes )
{
    Decoded decoded;
    for( size_t at = 0; at < bytes.size(); ) {
        size_t length = 1;
        while( at + length < bytes.size() && BeginsSequence( bytes.substr( at, length + 1 ) ) ) ++length;
        const Bytes sequence = bytes.substr( at, length );
        at += length;

        PbChar ch = uint8_t( sequence[ 0 ] ) & ( length == 1 ? 0xFF : 0x3F >> ( length - 1 ) );
        for( size_t i = 1; i < length; ++i ) ch = ( ch << 6 ) | ( uint8_t( sequence[ i ] ) & 0x3F );
        const bool complete = ReferenceEncode( { ch } ) == sequence;
        decoded.chs.push_back( complete ? ch : 0xFFFD );
        decoded.wellFormed = decoded.wellFormed && complete;
    }
    return decoded;
}

// ---- The conversions under test --------------------------------------------------------------------

CodePoints Chs( PbString *string )
{
    return { pbStringBacking( string ), pbStringBacking( string ) + pbStringLength( string ) };
}

void ExpectDecodes( const Bytes &bytes )
{
    const Decoded expected = ReferenceDecode( bytes );
    pb::Ref       buffer{ pbBufferCreateFromBytesCopy( bytes.data(), int64_t( bytes.size() ) ) };
    pb::Ref       lenient{ pbCharsetBufferToStringWithFlags( PB_CHARSET_UTF8, buffer.Get(), 0 ) };
    ASSERT_EQ( Chs( lenient.Get() ), expected.chs ) << testing::PrintToString( bytes );
    pb::Ref strict{ pbCharsetBufferToStringWithFlags( PB_CHARSET_UTF8, buffer.Get(), PB_CHARSET_FLAG_STRICT ) };
    ASSERT_EQ( bool( strict ), expected.wellFormed ) << testing::PrintToString( bytes );
    if( strict ) {
        ASSERT_EQ( Chs( strict.Get() ), expected.chs );
    }
}

// A block that ends where its bytes end, so that a sanitizer sees what is written past them.
int64_t Convert( Bytes &bytes, size_t room, const CodePoints &chs, bool strict )
{
    std::vector< PbByte > block( room );
    const int64_t         length = pbCharsConvertToUtf8( room ? block.data() : nullptr, int64_t( room ), chs.data(),
                                                 int64_t( chs.size() ), strict );
    bytes.assign( block.begin(), block.end() );
    return length;
}

void ExpectEncodes( const CodePoints &chs )
{
    const Bytes expected = ReferenceEncode( chs );
    Bytes       bytes;
    ASSERT_EQ( Convert( bytes, expected.size(), chs, false ), int64_t( expected.size() ) );
    ASSERT_EQ( bytes, expected );
    ASSERT_EQ( Convert( bytes, 0, chs, false ), int64_t( expected.size() ) );
    const bool scalars = std::all_of( chs.begin(), chs.end(), IsScalar );
    ASSERT_EQ( Convert( bytes, expected.size(), chs, true ), scalars ? int64_t( expected.size() ) : -1 );

    pb::Ref string{ pbStringCreateFromCharsCopy( chs.data(), int64_t( chs.size() ) ) };
    pb::Ref buffer{ pbCharsetStringToBufferWithFlags( PB_CHARSET_UTF8, string.Get(), 0 ) };
    ASSERT_EQ( Bytes( reinterpret_cast< const char * >( pbBufferBacking( buffer.Get() ) ),
                      size_t( pbBufferLength( buffer.Get() ) ) ),
               expected );
    pb::Ref strict{ pbCharsetStringToBufferWithFlags( PB_CHARSET_UTF8, string.Get(), PB_CHARSET_FLAG_STRICT ) };
    ASSERT_EQ( bool( strict ), scalars );
}

// ---- The tests -------------------------------------------------------------------------------------

TEST( Utf8, ConvertsEveryCodePoint )
{
    CodePoints all;
    for( PbChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        if( ch == 0xD800 ) ch = 0xE000;
        all.push_back( ch );
    }
    const Bytes bytes = ReferenceEncode( all );
    ExpectEncodes( all );

    pb::Ref string{
        pb___StringTryCreateFromUtf8( reinterpret_cast< const PbByte * >( bytes.data() ), int64_t( bytes.size() ) ) };
    ASSERT_TRUE( string );
    EXPECT_TRUE( pbStringEqualsChars( string.Get(), all.data(), int64_t( all.size() ) ) );
}

// The kernels take blocks of 16 and 32: every length and every place of a character that ends a run crosses their
// borders.
TEST( Utf8, FindsTheEndOfAnAsciiRunOfAnyLength )
{
    for( size_t length = 0; length <= 70; ++length ) {
        CodePoints ascii;
        for( size_t i = 0; i < length; ++i ) ascii.push_back( PbChar( ( i * 37 + length ) % 0x80 ) );
        ExpectEncodes( ascii );
        ExpectDecodes( ReferenceEncode( ascii ) );
        for( size_t at = 0; at < length; ++at ) {
            CodePoints chs = ascii;
            for( const PbChar ch : { 0x80, 0x20AC, 0x8041, 0xD7FF, 0xD800, 0xDFFF, 0xE000, 0x10041, 0x10FFFF, 0x110000,
                                     -1, INT32_MIN } ) {
                chs[ at ] = ch;
                ExpectEncodes( chs );
            }
            Bytes bytes = ReferenceEncode( chs );
            ExpectDecodes( bytes );
            bytes[ at ] = '\xFF';
            ExpectDecodes( bytes );
        }
    }
}

TEST( Utf8, DecodesArbitraryBytesAsTheReferenceDoes )
{
    std::mt19937 random( 1 );
    // Those at which the table of well-formed sequences has its borders come often.
    const Bytes borders =
        "\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xFF";
    for( int round = 0; round < 20'000; ++round ) {
        Bytes bytes( random() % 40, 'a' );
        for( char &byte : bytes ) switch( random() % 4 ) {
            case 0: byte = char( random() ); break;
            case 1: break;
            default: byte = borders[ random() % borders.size() ]; break;
            }
        ExpectDecodes( bytes );
        if( HasFatalFailure() ) return;
    }
}

TEST( Utf8, WritesTheLongestPrefixThatFits )
{
    CodePoints chs;
    for( int i = 0; i < 12; ++i ) chs.insert( chs.end(), { 'a', 'b', 'c', 0xE9, 0x20AC, 'd', 0x10FFFF } );
    chs.insert( chs.end(), 600, 'z' );
    const Bytes whole = ReferenceEncode( chs );
    for( size_t room = 0; room <= whole.size(); ++room ) {
        size_t fits = room; // the last border of a character that is not beyond the room
        while( fits < whole.size() && ( whole[ fits ] & 0xC0 ) == 0x80 ) --fits;
        Bytes bytes;
        ASSERT_EQ( Convert( bytes, room, chs, true ), int64_t( whole.size() ) );
        ASSERT_EQ( bytes, whole.substr( 0, fits ) + Bytes( room - fits, '\0' ) ) << room;
    }
}

TEST( CharsetDeathTest, MisuseAborts )
{
    pb::Ref buffer{ pbBufferCreate() };
    PbByte  byte;
    PbChar  ch = 'x';
    EXPECT_ABORT( "charset == PB_CHARSET_UTF8", pbCharsetBufferToStringWithFlags( 43, buffer.Get(), 0 ) );
    EXPECT_ABORT( "charset == PB_CHARSET_UTF8", pbCharsetStringToBufferWithFlags( 43, nullptr, 0 ) );
    EXPECT_ABORT( "bytes || bytesLength == 0", pbCharsConvertToUtf8( nullptr, 1, &ch, 1, false ) );
    EXPECT_ABORT( "bytesLength >= 0", pbCharsConvertToUtf8( &byte, -1, &ch, 1, false ) );
    EXPECT_ABORT( "chs || chsLength == 0", pbCharsConvertToUtf8( &byte, 1, nullptr, 1, false ) );
    EXPECT_ABORT( "chsLength >= 0", pbCharsConvertToUtf8( &byte, 1, &ch, -1, false ) );
}

TEST( Unicode, MapsCharactersToUpperCase )
{
    const auto upper = []( PbChar ch ) {
        PbChar mapping[ 3 ] = {};
        return CodePoints( mapping, mapping + pb___UnicodeUpperCaseDbLookup( ch, mapping ) );
    };
    EXPECT_EQ( upper( 'z' ), CodePoints{ 'Z' } );
    EXPECT_EQ( upper( '{' ), CodePoints{ '{' } );
    EXPECT_EQ( upper( 0xDF ), ( CodePoints{ 'S', 'S' } ) );
    EXPECT_EQ( upper( 0x390 ), ( CodePoints{ 0x399, 0x308, 0x301 } ) );
    for( const PbChar ch : { 0xD800, -1, 0x110000 } ) EXPECT_EQ( upper( ch ), CodePoints{ ch } );
    for( PbChar ch = 0; ch <= 0x10FFFF; ++ch ) ASSERT_LE( upper( ch ).size(), 3u );
}

} // namespace
