// The character classes of the SIP grammar inline, for loops over text: one load and one test per character. C++ only;
// never installed.
//
//     while( n < length && sipsn::Is( chs[ n ], sipsn::Token ) ) ++n;
#pragma once

#include "pb/pb_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace sipsn {

// One bit per class. Or-ed together they are the union of the classes.
using CharClass = uint32_t;

inline constexpr CharClass Digit          = 1u << 0;
inline constexpr CharClass UpperAlpha     = 1u << 1;
inline constexpr CharClass LowerAlpha     = 1u << 2;
inline constexpr CharClass HexAlpha       = 1u << 3; // "A" to "F" in either case
inline constexpr CharClass Lws            = 1u << 4;
inline constexpr CharClass Mark           = 1u << 5;
inline constexpr CharClass Reserved       = 1u << 6;
inline constexpr CharClass UserUnreserved = 1u << 7;
inline constexpr CharClass HnvUnreserved  = 1u << 8;
inline constexpr CharClass Separator      = 1u << 9;
inline constexpr CharClass Token          = 1u << 10;
inline constexpr CharClass TokenNodot     = 1u << 11;
inline constexpr CharClass Word           = 1u << 12;
inline constexpr CharClass Percent        = 1u << 13;

// What RFC 3261 lists beside `unreserved` and escapes.
inline constexpr CharClass PasswordUnreserved = 1u << 14;
inline constexpr CharClass ParamUnreserved    = 1u << 15;

inline constexpr CharClass Hyphen     = 1u << 16;
inline constexpr CharClass QuoteStop  = 1u << 17; // what a quoted string does not simply hold
inline constexpr CharClass NoIri      = 1u << 18; // what no IRI holds
inline constexpr CharClass Semicolon  = 1u << 19;
inline constexpr CharClass IriDivider = 1u << 20; // what ends the authority of an IRI

inline constexpr CharClass Alpha      = UpperAlpha | LowerAlpha;
inline constexpr CharClass Alphanum   = Alpha | Digit;
inline constexpr CharClass Hexdig     = Digit | HexAlpha;
inline constexpr CharClass Unreserved = Alphanum | Mark;
inline constexpr CharClass ParamChar  = Unreserved | ParamUnreserved | Percent;
inline constexpr CharClass Atom       = TokenNodot;

inline constexpr pb::ClassTable< CharClass > charClasses = [] {
    pb::ClassTable< CharClass > classes{};
    const auto                  add = [ &classes ]( std::string_view characters, CharClass mask ) {
        for( char ch : characters ) classes[ size_t( ch ) ] |= mask;
    };

    add( "0123456789", Digit | Token | TokenNodot | Word );
    add( "ABCDEFGHIJKLMNOPQRSTUVWXYZ", UpperAlpha | Token | TokenNodot | Word );
    add( "abcdefghijklmnopqrstuvwxyz", LowerAlpha | Token | TokenNodot | Word );
    add( "ABCDEFabcdef", HexAlpha );
    add( " \t", Lws );
    add( "-_.!~*'()", Mark );
    add( ";/?:@&=+$,", Reserved );
    add( "&=+$,;?/", UserUnreserved );
    add( "[]/?:+$", HnvUnreserved );
    add( "()<>@,;:\\\"/[]?={} \t", Separator );
    add( "-!%*_+`'~", Token | TokenNodot | Word );
    add( ".", Token | Word );
    add( "()<>:\\\"/[]?{}", Word );
    add( "%", Percent );
    add( "&=+$,", PasswordUnreserved );
    add( "[]/:&+$", ParamUnreserved );
    add( "-", Hyphen );
    add( "\"\\\r\n", QuoteStop );
    add( "\"<>\\^`{|}\x7F", NoIri );
    for( size_t ch = 0; ch <= ' '; ++ch ) classes[ ch ] |= NoIri;
    add( ";", Semicolon );
    add( "/?#", IriDivider );
    return classes;
}();

constexpr bool Is( PbChar ch, CharClass mask ) { return pb::IsIn( charClasses, mask, ch ); }

using pb::AsciiLower;

} // namespace sipsn
