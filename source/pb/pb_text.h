// Text as all libraries read and write it: runs of one character class, keywords, letter case, numbers, escapes, UTF-8,
// and whatever vector instructions do. C++ only; never installed.
#pragma once

#include "pb_types.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <string_view>
#include <type_traits>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace pb {

// ---- Views -----------------------------------------------------------------------------------------

// A run of characters in somebody else's text.
struct Text
{
    const PbChar *chs    = nullptr;
    int64_t       length = 0;

    PbChar operator[]( int64_t n ) const { return chs[ n ]; }
    Text   From( int64_t n ) const { return { chs + n, length - n }; }
    Text   First( int64_t n ) const { return { chs, std::min( n, length ) }; }
    bool   Has( int64_t n, PbChar ch ) const { return n < length && chs[ n ] == ch; }
};

// Walks over a text by productions: functions that tell how many characters at the start of a text they match, 0 when
// they do not. A step that does not match consumes nothing.
class Walk
{
public:
    explicit Walk( Text text ) : text_{ text } {}

    // Inlined, so that the production is called directly and not through a pointer.
    template< class Production > [[gnu::always_inline]] bool Take( Production production )
    {
        const int64_t count = production( text_.From( at_ ) );
        at_ += count;
        return count > 0;
    }
    bool TakeChar( PbChar ch )
    {
        if( !text_.Has( at_, ch ) ) return false;
        ++at_;
        return true;
    }

    int64_t Count() const { return at_; }

private:
    Text    text_;
    int64_t at_ = 0;
};

// ---- Runs of one class -----------------------------------------------------------------------------

// A table has bits for each ASCII character, one for each class that it belongs to. A class is given as its bit;
// several bits or-ed together are the union of their classes. No class holds characters beyond ASCII.
template< class Bits > using ClassTable = std::array< Bits, 128 >;

template< class Bits > constexpr bool IsIn( const ClassTable< Bits > &table, Bits mask, PbChar ch )
{
    return uint32_t( ch ) < table.size() && ( table[ uint32_t( ch ) ] & mask ) != 0;
}

// How many characters from the first on are in the class, or are not. Four at a time are tested for ASCII at once.
template< bool in, class Bits >
inline int64_t CountRun( const ClassTable< Bits > &table, Bits mask, const PbChar *chs, int64_t length )
{
    const auto belongs = [ & ]( uint32_t ch ) { return ( ( table[ ch ] & mask ) != 0 ) == in; };

    int64_t n = 0;
    for( ; n + 4 <= length; n += 4 ) {
        const uint32_t a = uint32_t( chs[ n ] ), b = uint32_t( chs[ n + 1 ] );
        const uint32_t c = uint32_t( chs[ n + 2 ] ), d = uint32_t( chs[ n + 3 ] );
        if( ( a | b | c | d ) >= table.size() ) break;
        if( !belongs( a ) ) return n;
        if( !belongs( b ) ) return n + 1;
        if( !belongs( c ) ) return n + 2;
        if( !belongs( d ) ) return n + 3;
    }
    while( n < length && IsIn( table, mask, chs[ n ] ) == in ) ++n;
    return n;
}

// ---- Letter case of ASCII --------------------------------------------------------------------------

constexpr bool IsAscii( PbChar ch ) { return uint32_t( ch ) < 0x80; }

// Whether it is one of the 26 letters from "A", or from "a", on.
constexpr bool IsLetterFrom( PbChar first, PbChar ch ) { return uint32_t( ch ) - uint32_t( first ) < 26; }

// A letter of the other case as one of this case; any other character as it is.
constexpr PbChar AsciiLower( PbChar ch ) { return IsLetterFrom( 'A', ch ) ? ch + ( 'a' - 'A' ) : ch; }
constexpr PbChar AsciiUpper( PbChar ch ) { return IsLetterFrom( 'a', ch ) ? ch - ( 'a' - 'A' ) : ch; }

// Copies characters, `to` being another place or the same, with the letters from `first` on in the other case. Whether
// all are ASCII: what is not stays as it is.
template< PbChar first > bool CopyInOtherCase( PbChar *to, const PbChar *from, int64_t length )
{
    uint32_t bits = 0;
    for( int64_t n = 0; n < length; ++n ) {
        const PbChar ch = from[ n ];
        bits |= uint32_t( ch );
        to[ n ] = ch ^ PbChar( uint32_t( IsLetterFrom( first, ch ) ) << 5 );
    }
    return bits < 0x80;
}

// Whether the text begins with the keyword, letters of ASCII in either case.
template< class Unit > constexpr bool StartsWithKeyword( Text text, const Unit *keyword, int64_t length )
{
    if( text.length < length ) return false;
    for( int64_t n = 0; n < length; ++n )
        if( AsciiLower( text[ n ] ) != AsciiLower( PbChar( keyword[ n ] ) ) ) return false;
    return true;
}
constexpr bool StartsWithKeyword( Text text, std::string_view keyword )
{
    return StartsWithKeyword( text, keyword.data(), int64_t( keyword.size() ) );
}

// ---- Numbers ---------------------------------------------------------------------------------------

// The value of a digit in any radix, letters in either case; 36 for other characters.
constexpr uint32_t DigitValue( PbChar ch )
{
    const uint32_t digit  = uint32_t( ch ) - '0';
    const uint32_t letter = ( uint32_t( ch ) | 0x20 ) - 'a';
    return digit < 10 ? digit : letter < 26 ? letter + 10 : 36;
}

// The value of a hexadecimal digit; -1 for other characters.
constexpr int HexValue( PbChar ch )
{
    const uint32_t value = DigitValue( ch );
    return value < 16 ? int( value ) : -1;
}

// A radix that is known while compiling.
template< uint64_t radix > using Radix = std::integral_constant< uint64_t, radix >;

struct Number
{
    uint64_t value;
    int64_t  length; // of its digits; 0 when there are none
};

// The number that the digits at the start make. For one above `most` the value is above `most` too, whatever it is.
template< class Base, class Unit >
[[gnu::always_inline]] constexpr Number ReadNumber( const Unit *digits, int64_t length, Base radix, uint64_t most )
{
    const uint64_t base = radix;
    const int64_t  safe = std::min< int64_t >( length, base == 10 ? 18 : 12 ); // so many fit whatever they are

    const auto valueAt = [ = ]( int64_t n ) -> uint64_t {
        return base == 10 ? uint32_t( digits[ n ] ) - '0' : DigitValue( PbChar( digits[ n ] ) );
    };
    Number number{ 0, 0 };
    for( ; number.length < safe; ++number.length ) {
        const uint64_t digit = valueAt( number.length );
        if( digit >= base ) return number;
        number.value = number.value * base + digit;
    }
    for( ; number.length < length; ++number.length ) {
        const uint64_t digit = valueAt( number.length );
        if( digit >= base ) break;
        const bool overflows = __builtin_mul_overflow( number.value, base, &number.value ) ||
                               __builtin_add_overflow( number.value, digit, &number.value );
        if( overflows || number.value > most ) number.value = most + 1;
    }
    return number;
}

inline constexpr char lowerDigits[] = "0123456789abcdefghijklmnopqrstuvwxyz";
inline constexpr char upperDigits[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

inline constexpr int64_t maxDigits = 64; // of any number in any radix

// Writes an unsigned number; the place behind it.
template< class Unit, class Unsigned, class Base >
Unit *WriteNumber( Unit *to, Unsigned number, Base radix, const char *digits = lowerDigits )
{
    const auto base = static_cast< Unsigned >( radix );
    if( number >= base ) to = WriteNumber( to, number / base, radix, digits );
    *to = static_cast< Unit >( digits[ number % base ] );
    return to + 1;
}

// ---- Escapes ---------------------------------------------------------------------------------------

// The byte of the escape that the text begins with, "%" and two hexadecimal digits; -1 when it begins with none.
inline int EscapedByte( Text text )
{
    if( text.length < 3 || text[ 0 ] != '%' ) return -1;
    const int high = HexValue( text[ 1 ] );
    const int low  = HexValue( text[ 2 ] );
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

// Hands the escape of a byte to `put`, character by character.
template< class Put > void PutEscaped( PbByte byte, Put put )
{
    put( '%' );
    put( upperDigits[ byte >> 4 ] );
    put( upperDigits[ byte & 15 ] );
}

// ---- UTF-8 -----------------------------------------------------------------------------------------

inline constexpr PbChar replacementChar = 0xFFFD; // stands for what cannot be converted

// What a lead byte says about its sequence: how many bytes follow, and between which values the first of these must lie
// to rule out overlong forms, surrogates and what is above 10FFFF (RFC 3629 section 4).
struct Utf8Lead
{
    int64_t following; // 0: no lead byte
    PbByte  low  = 0x80;
    PbByte  high = 0xBF;
};

constexpr Utf8Lead Utf8LeadOf( PbByte byte )
{
    if( byte < 0xC2 ) return { 0 };
    if( byte < 0xE0 ) return { 1 };
    if( byte == 0xE0 ) return { 2, 0xA0, 0xBF };
    if( byte == 0xED ) return { 2, 0x80, 0x9F };
    if( byte < 0xF0 ) return { 2 };
    if( byte == 0xF0 ) return { 3, 0x90, 0xBF };
    if( byte < 0xF4 ) return { 3 };
    if( byte == 0xF4 ) return { 3, 0x80, 0x8F };
    return { 0 };
}

// Decodes the one sequence at the start of a text of at least one byte and returns how many bytes it takes. For an
// ill-formed one `ch` is -1, and the result the number of bytes that one U+FFFD stands for.
inline int64_t DecodeUtf8Sequence( PbChar &ch, const PbByte *bytes, int64_t length )
{
    ch = bytes[ 0 ];
    if( ch < 0x80 ) return 1;

    const auto     continues = []( PbByte byte ) { return ( byte & 0xC0 ) == 0x80; };
    const Utf8Lead lead      = Utf8LeadOf( bytes[ 0 ] );
    int64_t        taken     = 1;
    // 1F, 0F and 07 are the payloads of the lead bytes of sequences of 2, 3 and 4 bytes.
    PbChar code = bytes[ 0 ] & ( 0x3F >> lead.following );
    if( lead.following && length > 1 && bytes[ 1 ] >= lead.low && bytes[ 1 ] <= lead.high )
        for( ; taken <= lead.following && taken < length && continues( bytes[ taken ] ); ++taken )
            code = ( code << 6 ) | ( bytes[ taken ] & 0x3F );
    ch = lead.following && taken == lead.following + 1 ? code : -1;
    return taken;
}

// Decodes into `chs`, which has room for `length` characters, and returns how many it wrote. Ill-formed input: -1 when
// strict; else each maximal part of it that could begin a sequence, or else each byte, becomes U+FFFD. For libpb alone,
// as is the next one.
int64_t DecodeUtf8( PbChar *chs, const PbByte *bytes, int64_t length, bool strict );

// Encodes as pbCharsConvertToUtf8 does.
int64_t EncodeUtf8( PbByte *bytes, int64_t bytesLength, const PbChar *chs, int64_t chsLength, bool strict );

// ---- Blocks of sixteen bytes -----------------------------------------------------------------------

// Sixteen bytes that are compared and mapped at once; bit n of a mask is for byte n. Block and Narrower are made of
// vector instructions where there are any. The plain ones are always there, so that the tests can hold the two
// together.
struct PlainBlock
{
    std::array< PbByte, 16 > bytes;

    static PlainBlock Load( const PbByte *from )
    {
        PlainBlock block;
        std::copy_n( from, block.bytes.size(), block.bytes.begin() );
        return block;
    }
    static PlainBlock Of( PbByte byte )
    {
        PlainBlock block;
        block.bytes.fill( byte );
        return block;
    }

    uint32_t Equal( const PlainBlock &other ) const
    {
        uint32_t mask = 0;
        for( size_t n = 0; n < bytes.size(); ++n ) mask |= uint32_t( bytes[ n ] == other.bytes[ n ] ) << n;
        return mask;
    }
    uint32_t Differs( const PlainBlock &other, const PlainBlock &anyBits ) const // in bits that are not among those
    {
        uint32_t mask = 0;
        for( size_t n = 0; n < bytes.size(); ++n )
            mask |= uint32_t( ( ( bytes[ n ] ^ other.bytes[ n ] ) & ~anyBits.bytes[ n ] ) != 0 ) << n;
        return mask;
    }
    uint32_t NotAscii() const
    {
        uint32_t mask = 0;
        for( size_t n = 0; n < bytes.size(); ++n ) mask |= uint32_t( bytes[ n ] >> 7 ) << n;
        return mask;
    }
    void Widen( PbChar *to ) const { std::copy( bytes.begin(), bytes.end(), to ); } // to as many characters
};

// Writes the low bytes of characters and gathers all their bits, so that one test at the end tells whether they were
// ASCII.
class PlainNarrower
{
public:
    void Write( PbByte *to, const PbChar *from, int64_t length )
    {
        for( int64_t n = 0; n < length; ++n ) {
            bits_ |= uint32_t( from[ n ] );
            to[ n ] = PbByte( from[ n ] );
        }
    }
    bool AllAscii() const { return bits_ < 0x80; }

private:
    uint32_t bits_ = 0;
};

#if defined( __SSE2__ )

struct SseBlock
{
    __m128i bytes;

    static SseBlock Load( const PbByte *from )
    {
        return { _mm_loadu_si128( reinterpret_cast< const __m128i * >( from ) ) };
    }
    static SseBlock Of( PbByte byte ) { return { _mm_set1_epi8( char( byte ) ) }; }

    uint32_t Equal( SseBlock other ) const
    {
        return uint32_t( _mm_movemask_epi8( _mm_cmpeq_epi8( bytes, other.bytes ) ) );
    }
    uint32_t Differs( SseBlock other, SseBlock anyBits ) const
    {
        const __m128i bits = _mm_andnot_si128( anyBits.bytes, _mm_xor_si128( bytes, other.bytes ) );
        return 0xFFFF ^ uint32_t( _mm_movemask_epi8( _mm_cmpeq_epi8( bits, _mm_setzero_si128() ) ) );
    }
    uint32_t NotAscii() const { return uint32_t( _mm_movemask_epi8( bytes ) ); }
    void     Widen( PbChar *to ) const
    {
        const __m128i zero  = _mm_setzero_si128();
        const __m128i words = _mm_unpacklo_epi8( bytes, zero ), more = _mm_unpackhi_epi8( bytes, zero );
        const auto    store = [ = ]( int64_t at, __m128i four ) {
            _mm_storeu_si128( reinterpret_cast< __m128i    *>( to + at ), four );
        };
        store( 0, _mm_unpacklo_epi16( words, zero ) );
        store( 4, _mm_unpackhi_epi16( words, zero ) );
        store( 8, _mm_unpacklo_epi16( more, zero ) );
        store( 12, _mm_unpackhi_epi16( more, zero ) );
    }
};

class SseNarrower
{
public:
    // Blocks overlap at the end of the text, where that is shorter than a block. The bits are gathered in a local,
    // because a store of bytes may change any member for all that the compiler knows.
    void Write( PbByte *to, const PbChar *from, int64_t length )
    {
        __m128i    bits = bits_;
        const auto load = [ & ]( int64_t at ) {
            const __m128i four = _mm_loadu_si128( reinterpret_cast< const __m128i * >( from + at ) );
            bits               = _mm_or_si128( bits, four );
            return four;
        };
        const auto writeEight = [ & ]( int64_t at ) {
            const __m128i low   = load( at );
            const __m128i words = _mm_packs_epi32( low, load( at + 4 ) );
            _mm_storel_epi64( reinterpret_cast< __m128i * >( to + at ), _mm_packus_epi16( words, words ) );
        };
        const auto writeFour = [ & ]( int64_t at ) {
            const __m128i four  = load( at );
            const __m128i words = _mm_packs_epi32( four, four );
            const int     bytes = _mm_cvtsi128_si32( _mm_packus_epi16( words, words ) );
            std::memcpy( to + at, &bytes, 4 );
        };
        if( length >= 8 ) {
            for( int64_t at = 0; at < length - 8; at += 8 ) writeEight( at );
            writeEight( length - 8 );
        } else if( length >= 4 ) {
            writeFour( 0 );
            writeFour( length - 4 );
        } else
            for( int64_t at = 0; at < length; ++at ) {
                bits     = _mm_or_si128( bits, _mm_cvtsi32_si128( from[ at ] ) );
                to[ at ] = PbByte( from[ at ] );
            }
        bits_ = bits;
    }
    bool AllAscii() const
    {
        const __m128i beyond = _mm_and_si128( bits_, _mm_set1_epi32( ~0x7F ) );
        return _mm_movemask_epi8( _mm_cmpeq_epi8( beyond, _mm_setzero_si128() ) ) == 0xFFFF;
    }

private:
    __m128i bits_ = _mm_setzero_si128();
};

using Block    = SseBlock;
using Narrower = SseNarrower;

#else

using Block    = PlainBlock;
using Narrower = PlainNarrower;

#endif

} // namespace pb
