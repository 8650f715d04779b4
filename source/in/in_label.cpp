// Punycode, and the letters about which libidn2 need not be asked.
#include "in_label.h"

#include <algorithm>
#include <iterator>

namespace in {

namespace {

// ---- Punycode --------------------------------------------------------------------------------------

// RFC 3492 section 5.
constexpr int64_t base        = 36;
constexpr int64_t leastDigit  = 1;
constexpr int64_t mostDigit   = 26;
constexpr int64_t skew        = 38;
constexpr int64_t damp        = 700;
constexpr int64_t initialBias = 72;
constexpr int64_t initialChar = 0x80;
constexpr int64_t lastChar    = 0x10FFFF;

// The threshold of the digit that has `place`, a multiple of the base.
int64_t Threshold( int64_t place, int64_t bias ) { return std::clamp( place - bias, leastDigit, mostDigit ); }

int64_t Adapted( int64_t delta, int64_t count, bool isFirst )
{
    delta = isFirst ? delta / damp : delta / 2;
    delta += delta / count;
    int64_t place = 0;
    for( ; delta > ( base - leastDigit ) * mostDigit / 2; place += base ) delta /= base - leastDigit;
    return place + ( base - leastDigit + 1 ) * delta / ( delta + skew );
}

// Reads one number and moves `at` behind it; -1 when there is none, or none that could stand for a character.
int64_t TakeNumber( const char *&at, const char *end, int64_t bias )
{
    constexpr int64_t limit = ( labelLimit + 1 ) * ( lastChar + 1 );

    int64_t number = 0;
    int64_t weight = 1;
    for( int64_t place = base; at != end; place += base ) {
        const char    ch        = *at++;
        const int64_t digit     = ch >= 'a' && ch <= 'z' ? ch - 'a' : ch >= '0' && ch <= '9' ? ch - '0' + 26 : base;
        const int64_t threshold = Threshold( place, bias );
        if( digit == base ) return -1;
        number += digit * weight;
        if( number > limit ) return -1;
        if( digit < threshold ) return number;
        weight *= base - threshold;
    }
    return -1;
}

void PutNumber( int64_t number, int64_t bias, char *&at )
{
    const auto put = [ & ]( int64_t digit ) { *at++ = char( digit < 26 ? 'a' + digit : '0' + digit - 26 ); };
    for( int64_t place = base;; place += base ) {
        const int64_t threshold = Threshold( place, bias );
        if( number < threshold ) return put( number );
        put( threshold + ( number - threshold ) % ( base - threshold ) );
        number = ( number - threshold ) / ( base - threshold );
    }
}

// ---- Letters ---------------------------------------------------------------------------------------

struct Letters
{
    PbChar first, last, step;
};

// Letters of Unicode 3.2, so that their properties are settled. RFC 5892 has them as PVALID, without a rule of context;
// they are lower case or have no case; they are not combining marks, and NFC neither changes them nor composes them
// with others of the tables or ASCII. Those of the first table make no label one that is written from right to left;
// those of the second are all of the bidirectional classes R and AL, so that a label of them alone satisfies RFC 5893
// section 2.
constexpr Letters leftToRight[] = {
    { 0xDF, 0xF6, 1 },       { 0xF8, 0xFF, 1 },     { 0x101, 0x131, 2 },   { 0x135, 0x137, 2 }, // Latin
    { 0x13A, 0x13E, 2 },     { 0x142, 0x148, 2 },   { 0x14B, 0x177, 2 },   { 0x17A, 0x17E, 2 }, // Latin
    { 0x3AC, 0x3CE, 1 },                                                                        // Greek
    { 0x430, 0x45F, 1 },     { 0x48B, 0x4BF, 2 },                                               // Cyrillic
    { 0x561, 0x586, 1 },                                                                        // Armenian
    { 0xE01, 0xE30, 1 },     { 0xE40, 0xE46, 1 },                                               // Thai
    { 0x10D0, 0x10F0, 1 },                                                                      // Georgian
    { 0x1EA1, 0x1EF9, 2 },                                                                      // Vietnamese
    { 0x3041, 0x3096, 1 },   { 0x30A1, 0x30FA, 1 }, { 0x30FC, 0x30FE, 1 },                      // Japanese
    { 0x3400, 0x4DB5, 1 },   { 0x4E00, 0x9FA5, 1 },                                             // Han
    { 0xAC00, 0xD7A3, 1 },                                                                      // Korean
    { 0x20000, 0x2A6D6, 1 },                                                                    // Han
};
constexpr Letters rightToLeft[] = {
    { 0x5D0, 0x5EA, 1 }, // Hebrew
    { 0x621, 0x63A, 1 }, // Arabic
    { 0x641, 0x64A, 1 }, // Arabic
    { 0x679, 0x6D3, 1 }, // Arabic
};

template< size_t count > bool Hold( const Letters ( &letters )[ count ], PbChar ch )
{
    const auto behind = std::upper_bound( letters, std::end( letters ), ch,
                                          []( PbChar of, const Letters &in ) { return of < in.first; } );
    if( behind == letters ) return false;
    const Letters &found = behind[ -1 ];
    return ch <= found.last && ( ch - found.first ) % found.step == 0;
}

} // namespace

int64_t DecodePunycode( const char *text, int64_t length, PbChar *chs )
{
    const char *const end = text + length;

    int64_t count = 0;
    for( const char *at = text; at != end; ++at )
        if( *at == '-' ) count = at - text;
    std::copy_n( text, count, chs );

    int64_t place = 0; // where the last character went
    int64_t ch    = initialChar;
    int64_t bias  = initialBias;
    for( const char *at = count > 0 ? text + count + 1 : text; at != end; ++place ) {
        const int64_t delta = TakeNumber( at, end, bias );
        if( delta < 0 || count == labelLimit ) return 0;
        ++count;
        bias = Adapted( delta, count, place == 0 );
        place += delta;
        ch += place / count;
        place %= count;
        if( ch > lastChar ) return 0;
        std::copy_backward( chs + place, chs + count - 1, chs + count );
        chs[ place ] = PbChar( ch );
    }
    return count;
}

int64_t EncodePunycode( pb::Text label, char *text )
{
    const PbChar *const end = label.chs + label.length;

    char         *at    = std::copy_if( label.chs, end, text, pb::IsAscii );
    const int64_t basic = at - text;
    if( basic > 0 ) *at++ = '-';

    int64_t delta = 0;
    int64_t bias  = initialBias;
    PbChar  ch    = initialChar;
    for( int64_t count = basic; count < label.length; ++delta, ++ch ) {
        PbChar next = lastChar;
        for( int64_t n = 0; n < label.length; ++n )
            if( label[ n ] >= ch ) next = std::min( next, label[ n ] );
        delta += ( next - ch ) * ( count + 1 );
        ch = next;
        for( int64_t n = 0; n < label.length; ++n ) {
            if( label[ n ] < ch ) ++delta;
            if( label[ n ] != ch ) continue;
            PutNumber( delta, bias, at );
            bias  = Adapted( delta, count + 1, count == basic );
            delta = 0;
            ++count;
        }
    }
    return at - text;
}

bool IsPlainLabel( pb::Text label )
{
    const PbChar *const end = label.chs + label.length;
    if( label.length >= 4 && label[ 2 ] == '-' && label[ 3 ] == '-' ) return false;
    return std::all_of( label.chs, end, []( PbChar ch ) { return pb::IsAscii( ch ) || Hold( leftToRight, ch ); } ) ||
           std::all_of( label.chs, end, []( PbChar ch ) { return Hold( rightToLeft, ch ); } );
}

} // namespace in
