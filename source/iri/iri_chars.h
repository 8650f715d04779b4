// The character classes of RFC 3986 and RFC 3987, for the sources of iri. C++ only; never installed.
#pragma once

#include "pb/pb_text.h"

#include <cstdint>
#include <string_view>

namespace iri {

// One bit per class, so that a character below 128 is classified with one load and one test. Percent escapes and the
// characters from 128 up are not in the table.
enum Class : uint16_t
{
    ClassDigit    = 1,
    ClassHex      = 2,
    ClassAlpha    = 4,
    ClassScheme   = 8,   // what may follow the first letter of a scheme
    ClassRegName  = 16,  // unreserved and sub-delims
    ClassUserInfo = 32,  // these and ":"; also the characters of an IPvFuture address
    ClassPath     = 64,  // pchar and "/", and "[" and "]"
    ClassQuery    = 128, // these and "?"
    ClassFragment = 256, // pchar, "/" and "?"
};

inline constexpr pb::ClassTable< uint16_t > classes = [] {
    pb::ClassTable< uint16_t > table{};
    const auto                 add = [ &table ]( std::string_view characters, int mask ) {
        for( char ch : characters ) table[ size_t( ch ) ] = uint16_t( table[ size_t( ch ) ] | mask );
    };
    const int fragment = ClassFragment;
    const int query    = ClassQuery | fragment;
    const int path     = ClassPath | query;
    const int userInfo = ClassUserInfo | path;
    const int regName  = ClassRegName | userInfo;

    add( "0123456789", ClassDigit | ClassHex | ClassScheme | regName );
    add( "abcdefABCDEF", ClassHex );
    add( "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", ClassAlpha | ClassScheme | regName );
    add( "+-.", ClassScheme );
    add( "-._~", regName );        // the rest of unreserved
    add( "!$&'()*+,;=", regName ); // sub-delims
    add( ":", userInfo );
    add( "@/", path );
    add( "[]", ClassPath | ClassQuery );
    add( "?", query );
    return table;
}();

inline bool Is( PbChar ch, uint16_t mask ) { return pb::IsIn( classes, mask, ch ); }

// ucschar: A0 to the surrogates, and from there on without private use, noncharacters, specials and the tag characters
// at the start of plane 14.
inline bool IsUcsChar( PbChar ch )
{
    if( ch <= 0xD7FF ) return ch >= 0xA0;
    if( ch <= 0xFFFF ) return ( ch >= 0xF900 && ch <= 0xFDCF ) || ( ch >= 0xFDF0 && ch <= 0xFFEF );
    return ch <= 0xEFFFD && ( ch & 0xFFFF ) <= 0xFFFD && ( ch < 0xE0000 || ch >= 0xE1000 );
}

// iprivate: private use, allowed in the query alone.
inline bool IsPrivateChar( PbChar ch )
{
    return ( ch >= 0xE000 && ch <= 0xF8FF ) || ( ch >= 0xF0000 && ch <= 0x10FFFD && ( ch & 0xFFFF ) <= 0xFFFD );
}

// Invisible characters that change the order in which the text around them is shown: the marks, embeddings, overrides
// and isolates of the Unicode bidirectional algorithm.
inline bool IsBidiFormatting( PbChar ch )
{
    return ch == 0x61C || ch == 0x200E || ch == 0x200F || ( ch >= 0x202A && ch <= 0x202E ) ||
           ( ch >= 0x2066 && ch <= 0x2069 );
}

} // namespace iri
