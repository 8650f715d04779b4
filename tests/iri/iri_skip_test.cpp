// The scanners: where the longest prefix ends, by readings of the grammars that are not ours.
#include "iri/iri_internal.h"

#include "text.h"

#include <algorithm>
#include <arpa/inet.h>
#include <random>
#include <regex.h>
#include <vector>

namespace {

using Skip = int64_t( const PbChar *chs, int64_t length );

int64_t SkipText( Skip *skip, const std::string &ascii )
{
    const std::basic_string< PbChar > chs( ascii.begin(), ascii.end() );
    return skip( chs.data(), int64_t( chs.size() ) );
}

// The longest prefix that the C library reads as an address.
int64_t LongestAddress( int family, const std::string &text )
{
    in6_addr address;
    for( size_t length = text.size(); length > 0; --length )
        if( inet_pton( family, text.substr( 0, length ).c_str(), &address ) == 1 ) return int64_t( length );
    return 0;
}

TEST( IriSkip, SchemeAndPort )
{
    for( const char *text : { "A+1-.:|<", "sip:| x", "|1a:b", "|sip", "|si/p:x", "|:x", "|/path", "|\u00E9:x", "|" } ) {
        const MarkedText marked{ text };
        EXPECT_EQ( iri___SkipIri( marked.all.data(), int64_t( marked.all.size() ) ), marked.matched ) << text;
    }
    for( const char *text : { "5060|;x", "123456789012345678901234567890|a", "|-1", "|\u0661", "|" } ) {
        const MarkedText marked{ text };
        EXPECT_EQ( iri___SkipPort( marked.all.data(), int64_t( marked.all.size() ) ), marked.matched ) << text;
    }
}

// RFC 3987 section 2.2, and "[" and "]" in path and query.
TEST( IriSkip, EachPlaceHasItsCharacters )
{
    struct Range
    {
        PbChar first, last;
    };
    std::vector< Range > ucsChars{ { 0xA0, 0xD7FF }, { 0xF900, 0xFDCF }, { 0xFDF0, 0xFFEF }, { 0xE1000, 0xEFFFD } };
    for( PbChar plane = 1; plane <= 0xD; ++plane ) ucsChars.push_back( { plane << 16, plane << 16 | 0xFFFD } );
    const std::vector< Range > privateChars{ { 0xE000, 0xF8FF }, { 0xF0000, 0xFFFFD }, { 0x100000, 0x10FFFD } };

    const std::string pchar = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$&'()*+,;=:@";
    const struct
    {
        const char *before;
        std::string ascii; // "?" and "#" may go on with the next part
        bool        isQuery;
    } places[] = {
        { "x:", pchar + "/[]?#", false },
        { "x:?", pchar + "/[]?#", true },
        { "x:#", pchar + "/?", false },
        { "x://", pchar + "/?#", false },
    };
    const auto isIn = []( const std::vector< Range > &ranges, PbChar ch ) {
        return std::any_of( ranges.begin(), ranges.end(),
                            [ = ]( Range range ) { return ch >= range.first && ch <= range.last; } );
    };
    for( const auto &[ before, ascii, isQuery ] : places ) {
        auto   text = Chars( std::string( before ) + "x" );
        size_t last = text.size() - 1;
        for( PbChar ch = -2; ch <= 0x110001; ++ch ) {
            text[ last ]        = ch;
            const bool isAscii  = ch > 0 && ch < 0x80 && ascii.find( char( ch ) ) != ascii.npos;
            const bool belongs  = isAscii || isIn( ucsChars, ch ) || ( isQuery && isIn( privateChars, ch ) );
            const auto expected = last + belongs;
            ASSERT_EQ( iri___SkipIri( text.data(), int64_t( text.size() ) ), int64_t( expected ) ) << before << ch;
        }
    }
}

// The nine rows of IPv6address in RFC 3986 section 3.2.2.
std::string IpV6Pattern()
{
    const std::string group  = "[0-9A-Fa-f]{1,4}";
    const std::string octet  = "(25[0-5]|2[0-4][0-9]|1[0-9]{2}|[1-9]?[0-9])";
    const std::string last32 = "(" + group + ":" + group + "|" + octet + "(\\." + octet + "){3})";
    const auto        times  = [ & ]( const char *count ) { return "(" + group + ":)" + count; };
    const auto        before = [ & ]( const char *count ) { return "(" + times( count ) + group + ")?::"; };
    return "(" + times( "{6}" ) + last32 + "|::" + times( "{5}" ) + last32 + "|" + before( "{0}" ) + times( "{4}" ) +
           last32 + "|" + before( "{0,1}" ) + times( "{3}" ) + last32 + "|" + before( "{0,2}" ) + times( "{2}" ) +
           last32 + "|" + before( "{0,3}" ) + times( "{1}" ) + last32 + "|" + before( "{0,4}" ) + last32 + "|" +
           before( "{0,5}" ) + group + "|" + before( "{0,6}" ) + ")";
}

// RFC 3986 as a POSIX regular expression, whose match is the leftmost longest one.
TEST( IriSkip, IriAgreesWithARegularExpression )
{
    const std::string escape    = "%[0-9A-Fa-f]{2}";
    const std::string regName   = "A-Za-z0-9._~!$&'()*+,;=-";
    const auto        one       = [ & ]( const std::string &set ) { return "([" + set + "]|" + escape + ")"; };
    const auto        many      = [ & ]( const std::string &set ) { return one( set ) + "*"; };
    const std::string future    = "v[0-9A-Fa-f]+\\.[:" + regName + "]+";
    const std::string literal   = "\\[(" + future + "|" + IpV6Pattern() + ")\\]";
    const std::string userInfo  = many( ":" + regName );
    const std::string path      = many( "][@:/" + regName );
    const std::string authority = "(" + userInfo + "@)?(" + literal + "|" + many( regName ) + ")(:[0-9]*)?";
    const std::string pattern   = "^[A-Za-z][A-Za-z0-9+.-]*:(//" + authority + "(/" + path + ")?|/?|/?" +
                                one( "][@:" + regName ) + "+(/" + path + ")?)([?]" + many( "][@:/?" + regName ) +
                                ")?(#" + many( "@:/?" + regName ) + ")?";
    regex_t regex;
    ASSERT_EQ( regcomp( &regex, pattern.c_str(), REG_EXTENDED ), 0 );

    static constexpr const char *pieces[] = { "a",  "1",   "F", ":", "/",     "//",     "?",   "#", "@", "[", "]",
                                              "%4", "%41", "%", ".", "[::1]", "[v1.a]", "::1", ";", " ", "-", "x:" };
    std::mt19937                 random{ 1 };
    for( int round = 0; round < 100'000; ++round ) {
        std::string text = "x:";
        if( random() % 2 ) text += "//";
        for( auto count = random() % 9; count > 0; --count ) text += pieces[ random() % std::size( pieces ) ];

        regmatch_t    match;
        const int64_t expected = regexec( &regex, text.c_str(), 1, &match, 0 ) == 0 ? match.rm_eo : 0;
        ASSERT_EQ( SkipText( iri___SkipIri, text ), expected ) << text;
    }
    regfree( &regex );
}

TEST( IriSkip, IpV4AddressAgreesWithTheCLibrary )
{
    static constexpr const char *pieces[] = { "0", "1", "25", "255", "256", "01", "300", ".", ".", ".", "..", "a" };
    std::mt19937                 random{ 1 };
    for( int round = 0; round < 100'000; ++round ) {
        std::string text = round % 2 ? "1.2." : "";
        for( auto count = random() % 9; count > 0; --count ) text += pieces[ random() % std::size( pieces ) ];
        ASSERT_EQ( SkipText( iri___SkipIpV4Address, text ), LongestAddress( AF_INET, text ) ) << text;
    }
    for( int octet = 0; octet < 1000; ++octet ) {
        const std::string text = "1.2." + std::to_string( octet ) + ".4";
        ASSERT_EQ( SkipText( iri___SkipIpV4Address, text ), LongestAddress( AF_INET, text ) ) << text;
    }
}

// Every form by the number of groups before and behind "::", with and without an IPv4 tail, and each of them with every
// one of its characters replaced, removed or doubled.
TEST( IriSkip, IpV6AddressAgreesWithTheCLibrary )
{
    std::vector< std::string > texts;
    const auto                 groups = []( int count ) {
        std::string text;
        for( int group = 0; group < count; ++group )
            text += std::string( group > 0, ':' ) + std::string{ "1aB2" }.substr( size_t( group % 4 ) );
        return text;
    };
    for( int before = 0; before <= 9; ++before )
        for( int behind = 0; behind <= 9; ++behind )
            for( const char *tail : { "", "7.2.55.4", ":7.2.55.4" } ) {
                texts.push_back( groups( before ) + "::" + groups( behind ) + tail );
                if( behind == 0 ) texts.push_back( groups( before ) + tail );
            }

    for( const std::string &text : texts ) {
        ASSERT_EQ( SkipText( iri___SkipIpV6Address, text ), LongestAddress( AF_INET6, text ) ) << text;
        for( size_t at = 0; at < text.size(); ++at )
            for( const char *piece : { "", ":", "::", ".", "0", "f", "G", "12345" } ) {
                const std::string near = text.substr( 0, at ) + piece + text.substr( at + 1 );
                ASSERT_EQ( SkipText( iri___SkipIpV6Address, near ), LongestAddress( AF_INET6, near ) ) << near;
            }
    }
}

TEST( IriSkipDeathTest, NegativeLengthAndNullAbort )
{
    for( Skip *skip : { iri___SkipIri, iri___SkipIpV4Address, iri___SkipIpV6Address, iri___SkipPort } ) {
        const PbChar ch = '1';
        EXPECT_EQ( skip( nullptr, 0 ), 0 );
        EXPECT_ABORT( "length >= 0", skip( &ch, -1 ) );
        EXPECT_ABORT( "chs || length == 0", skip( nullptr, 1 ) );
    }
}

} // namespace
