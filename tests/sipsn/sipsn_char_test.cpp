// The character classes, each against the list of its characters.
#include "sipsn/sipsn_char_internal.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <string>
#include <vector>

namespace {

const std::string lower = "abcdefghijklmnopqrstuvwxyz";
const std::string upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string digit = "0123456789";

// Everything below and a little above ASCII, and numbers that differ from an ASCII character only in their upper bits.
std::vector< PbChar > Candidates()
{
    std::vector< PbChar > candidates{ 0x20AC, 0x10061, 0x10FFFF, 0x110000, INT32_MAX, INT32_MIN, INT32_MIN + 'a' };
    for( PbChar ch = -130; ch < 400; ++ch ) candidates.push_back( ch );
    return candidates;
}

TEST( CharTest, ClassesHoldExactlyTheirCharacters )
{
    const std::string alphanum = lower + upper + digit;
    const std::string mark     = "-_.!~*'()";

    struct
    {
        const char *name;
        bool ( *is )( PbChar ch );
        std::string characters;
    } const classes[] = {
        { "Alpha", sipsn___CharIsAlpha, lower + upper },
        { "Digit", sipsn___CharIsDigit, digit },
        { "Alphanum", sipsn___CharIsAlphanum, alphanum },
        { "Hexdig", []( PbChar ch ) { return sipsn___CharIsHexdig( ch, nullptr ); }, digit + "ABCDEFabcdef" },
        { "Lws", sipsn___CharIsLws, " \t" },
        { "Mark", sipsn___CharIsMark, mark },
        { "Unreserved", sipsn___CharIsUnreserved, alphanum + mark },
        { "Reserved", sipsn___CharIsReserved, ";/?:@&=+$," },
        { "UserUnreserved", sipsn___CharIsUserUnreserved, "&=+$,;?/" },
        { "HnvUnreserved", sipsn___CharIsHnvUnreserved, "[]/?:+$" },
        { "ParamChar", sipsn___CharIsParamChar, alphanum + mark + "[]/:&+$%" },
        { "Token", sipsn___CharIsToken, alphanum + "-.!%*_+`'~" },
        { "TokenNodot", sipsn___CharIsTokenNodot, alphanum + "-!%*_+`'~" },
        { "Atom", sipsn___CharIsAtom, alphanum + "-!%*_+`'~" },
        { "Word", sipsn___CharIsWord, alphanum + "-.!%*_+`'~()<>:\\\"/[]?{}" },
        { "Separator", sipsn___CharIsSeparator, "()<>@,;:\\\"/[]?={} \t" },
    };
    for( const auto &[ name, is, characters ] : classes )
        for( const PbChar ch : Candidates() ) {
            const bool listed = ch > 0 && ch < 128 && characters.find( char( ch ) ) != characters.npos;
            EXPECT_EQ( is( ch ), listed ) << name << " of " << ch;
        }
}

TEST( CharTest, HexdigGivesTheValue )
{
    const std::string digits = "0123456789abcdef";
    for( const PbChar ch : Candidates() ) {
        const size_t  place    = ch > 0 && ch < 128 ? digits.find( char( std::tolower( ch ) ) ) : digits.npos;
        int64_t       value    = 77;
        const int64_t expected = place == digits.npos ? -1 : int64_t( place );
        EXPECT_EQ( sipsn___CharIsHexdig( ch, &value ), expected >= 0 ) << ch;
        EXPECT_EQ( value, expected ) << ch;
    }
}

} // namespace
