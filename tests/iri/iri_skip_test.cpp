// The scanners: where the longest prefix ends, and agreement with readings of the grammars that are not ours.
#include "iri/iri_internal.h"

#include "text.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <random>
#include <regex.h>
#include <vector>

namespace {

using Skip = int64_t( const PbChar *chs, int64_t length );

struct Case
{
    const char *matched; // the prefix that is the production
    const char *rest;
};

void ExpectPrefixes( Skip *skip, const std::vector< Case > &cases )
{
    for( const auto &[ matched, rest ] : cases ) {
        const auto text = Chars( std::string{ matched } + rest );
        EXPECT_EQ( skip( text.data(), int64_t( text.size() ) ), int64_t( Chars( matched ).size() ) )
            << matched << " | " << rest;
    }
}

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

TEST( IriSkip, IriEndsWhereTheGrammarDoes )
{
    ExpectPrefixes( iri___SkipIri,
                    {
                        { "sip:alice@example.com:5060;transport=tcp?subject=x%20y", " SIP/2.0" },
                        { "sip:bob@[2001:db8::1]:5060", ">;tag=1" },
                        { "sip:[::1]", "" },
                        { "sip:", "" },
                        { "sip:", " x" },
                        { "tel:+1-201-555-0123;phone-context=example.com,", "\\" },
                        { "urn:service:sos", "\"" },
                        { "A+1-.:", "<" },
                        { "", "1a:b" },
                        { "", "sip" },
                        { "", "si/p:x" },
                        { "", ":x" },
                        { "", "" },
                        { "", "/path" },
                        // escapes
                        { "x:a", "%" },
                        { "x:a", "%4" },
                        { "x:a", "%4g" },
                        { "x:%aF", "%%41" },
                        // authority: userinfo only before "@", digits only after the last ":"
                        { "http://u:p@h:80/p?q#f", "#" },
                        { "http://h:80", "x/p" },
                        { "http://h:", "x" },
                        { "http://u:x@h", "@z" },
                        { "x://", "" },
                        { "x:///p//q", "^" },
                        { "x:/", "" },
                        { "http://[2001:db8::1]:8080/", "" },
                        { "http://[v1F.a:b]", "" },
                        { "http://", "[v1.]" },
                        { "http://", "[v.a]" },
                        { "http://", "[::1" },
                        { "http://", "[::g]" },
                        { "http://h", "[x]" },
                        { "http://[::1]", "x/p" },
                        // "[" and "]" in path and query, not in the fragment
                        { "x:?[]#f", "[" },
                        { "x:?a?b#c?d/", "{" },
                        // beyond ASCII: ucschar everywhere but in scheme and port, private use in the query alone
                        { "x:\u00A0\uD7FF\uF900\uFDCF\uFDF0\uFFEF\U00010000\U0001FFFD\U000E1000\U000EFFFD", "" },
                        { "x://\u00E9@\u00E9:", "\u0661" },
                        { "x:", "\u009F" },
                        { "x:", "\uE000" },
                        { "x:", "\uFDD0" },
                        { "x:", "\uFFF0" },
                        { "x:", "\uFFFD" },
                        { "x:", "\U0001FFFE" },
                        { "x:", "\U000E0001" },
                        { "x:", "\U000F0000" },
                        { "x:?\uE000\uF8FF\U000F0000\U0010FFFD", "\U0010FFFE" },
                        { "x:#", "\uE000" },
                        { "", "\u00E9:x" },
                    } );

    for( PbChar ch : { 0, -1, 0x7F, 0x80, 0xD800, 0xDFFF, 0x110000, INT32_MIN, INT32_MAX } )
        for( PbChar mark : { 'p', '?', '#' } ) {
            const PbChar text[] = { 'x', ':', mark, ch, 'y' };
            EXPECT_EQ( iri___SkipIri( text, 5 ), 3 ) << std::hex << ch;
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

TEST( IriSkip, IpV4AddressHasFourNumbersUpTo255 )
{
    ExpectPrefixes( iri___SkipIpV4Address, {
                                               { "192.0.2.9", ":5060" },
                                               { "0.0.0.0", "" },
                                               { "1.2.3.25", "6" },
                                               { "1.2.3.0", "1" },
                                               { "1.2.3.4", ".5" },
                                               { "", "01.2.3.4" },
                                               { "", "1.256.3.4" },
                                               { "", "1.2.3." },
                                               { "", "1.2.3" },
                                               { "", "1..2.3" },
                                               { "", "1.2.3.\u0661" },
                                               { "", "" },
                                           } );
    for( int octet = 0; octet < 1000; ++octet )
        for( const std::string &text : { std::to_string( octet ) + ".2.3.4", "1.2." + std::to_string( octet ) + ".4",
                                         "1.2.3." + std::to_string( octet ) } )
            ASSERT_EQ( SkipText( iri___SkipIpV4Address, text ), LongestAddress( AF_INET, text ) ) << text;
}

TEST( IriSkip, IpV6AddressEndsWhereTheGrammarDoes )
{
    ExpectPrefixes( iri___SkipIpV6Address, {
                                               { "2001:db8::1", "]" },
                                               { "::", "" },
                                               { "::", ":1" },
                                               { "1::2", "::3" },
                                               { "1::", "%eth0" },
                                               { "::FFFF", "0" },
                                               { "1:2:3:4:5:6:7:8", ":9" },
                                               { "1:2:3:4:5:6:7::", "8" },
                                               { "::2:3:4:5:6:7:8", ":9" },
                                               { "1:2:3:4:5:6:1.2.3.4", ".5" },
                                               { "::1.2.3.25", "6" },
                                               { "::1", ".2.3" },
                                               { "1:2:3:4:5:6::1", ".2.3.4" },
                                               { "", "1:2:3:4:5:6:7" },
                                               { "", "1.2.3.4" },
                                               { "", ":1" },
                                               { "", "[::1]" },
                                               { "", "" },
                                           } );
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

TEST( IriSkip, PortIsOneDigitOrMore )
{
    ExpectPrefixes( iri___SkipPort, {
                                        { "5060", ";x" },
                                        { "0", "" },
                                        { "123456789012345678901234567890", "a" },
                                        { "", "-1" },
                                        { "", "" },
                                        { "", "\u0661" },
                                    } );
}

TEST( IriSkip, NothingBeyondTheLengthIsRead )
{
    for( const std::string text : { "x://u@[::1]:80/p%41?q#f", "1.2.3.4", "1:2:3:4:5:6:1.2.3.4", "1::2", "5060" } )
        for( Skip *skip : { iri___SkipIri, iri___SkipIpV4Address, iri___SkipIpV6Address, iri___SkipPort } )
            for( size_t length = 0; length <= text.size(); ++length ) {
                // The address sanitizer watches the end of this copy.
                const std::vector< PbChar > chs( text.begin(), text.begin() + int64_t( length ) );
                const int64_t               count = skip( chs.data(), int64_t( length ) );
                EXPECT_LE( count, int64_t( length ) ) << text;
            }
}

TEST( IriSkipDeathTest, NegativeLengthAndNullAbort )
{
    for( Skip *skip : { iri___SkipIri, iri___SkipIpV4Address, iri___SkipIpV6Address, iri___SkipPort } ) {
        const PbChar ch = '1';
        EXPECT_EQ( skip( nullptr, 0 ), 0 );
        EXPECT_DEATH( skip( &ch, -1 ), "length >= 0" );
        EXPECT_DEATH( skip( nullptr, 1 ), "chs \\|\\| length == 0" );
    }
}

} // namespace
