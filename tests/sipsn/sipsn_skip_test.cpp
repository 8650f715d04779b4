// The grammar scanner: what each production matches of a text. What holds for all of them on any text is the fuzzer's.
#include "sipsn/sipsn_skip_internal.h"

#include "exports.h"
#include "iri/iri_internal.h"
#include "text.h"

#include <set>

namespace {

using Production = int64_t( const PbChar *chs, int64_t length );

Production *Find( const std::string &name )
{
    const auto production = Exported< Production >( "sipsn___Skip" + name );
    EXPECT_TRUE( production ) << name;
    return production;
}

struct Row
{
    const char                 *name;
    std::vector< const char * > texts; // "|" stands behind what is matched
};

const Row rows[] = {
    // single characters
    { "Sws", { " \t |x", "|x ", "|\r\n ", "|\u00A0" } },
    { "Colon", { ":|", " \t:\t |x", "|  ", "|x:" } },
    { "Comma", { " , |,", "|;" } },
    { "Equal", { " = |=", "|:" } },
    { "Semi", { " ; |;", "|," } },
    { "Slash", { " / |/", "|\\" } },
    { "Star", { " * |*", "|+" } },
    { "Lparen", { " ( |(", "|)" } },
    { "Rparen", { " ) |)", "|(" } },
    { "Laquot", { "  <|a", "<| a", "|>" } },
    { "Raquot", { "> |;", "| >", "|<" } },
    { "Ldquot", { " \t\"| a", "|'" } },
    { "Rdquot", { "\" \t|;", "| \"" } },
    // tokens
    { "Token", { "INVITE| sip:", "a.b-c!%*_+`'~|@", "|\u00E9", "a|\u00E9" } },
    { "TokenNodot", { "a-b|.c", "|.a" } },
    { "Atom", { "a%b|.c", "|.a", "|@" } },
    { "DotAtom", { "a.b.c|@d", "a|.", "a|..b", "|.a" } },
    { "Word", { "a<b>:\\\"/[c]?{d}()|@x", "|@", "a|;b", "a| b" } },
    { "Digits", { "0123456789012345678901234567890|a", "|-1", "|\u0661" } },
    { "User", { "a;b?c/d%41&=+$,|@h", "a|%4g", "a|%4", "|%", "|:" } },
    { "Password", { "a&=+$,%Af|@", "a|;b", "|/" } },
    { "Uric", { ";/?:@&=+$,%00a|>", "a|[", "|%%41", "%41|%" } },
    { "Pvalue", { "[]/:&+$a%7F|;", "a|?b", "|@", "|%zz" } },
    { "Epid", { "0123456789abcdef|ghij", "0123456789abcdef|", "a| b", "|@" } },
    { "SessUuid",
      { "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz|", "0123456789abcdef0123456789abcdef|A", "0123456789abcdef0123456789abcdef|0",
        "|zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", "|zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzZ",
        "|Zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz" } },
    { "EventType", { "presence.winfo|;id", "a|.", "a|..b", "|.a" } },
    { "Rvalue", { "dsn.flash-override|", "a.b|.c", "|a", "|a.", "|.b" } },
    { "MediaSubtype", { "|*", "*x|", "**|", "|*;q=1", "sdp|" } },
    { "Refresher", { "uac|", "UaS|", "uac|s", "|ua", "|uab" } },
    { "Version", { "SIP/2.0| 200", "SIP / 2.0|", "|SIP/", "|SIP 2.0", "|/2.0" } },
    // quoted strings and comments
    { "QuotedString",
      { "\"ab\\\"c\"|", "\"\"|", " \t\"a\"| ;", "\"a\\\\\"| \"", "\"\u20AC\u0001\"|", "\"\\\u20AC\"|", "|\"", "|\"abc",
        "|\"abc\\\"", "|\"abc\\", "|\"a\nb\"", "|\"a\rb\"", "|\"a\\\nb\"", "|\"a\\\rb\"", "|   ", "|a\"b\"" } },
    { "Comment",
      { "(a (b) c)|", " ( a ) \t|x", "()|", "(a)|(b)", "(((())))|", "(\\)\\(\\\\)|", "(\u20AC\\\u20AC)|", "(\\\u0001)|",
        "|(a (b)", "|(", "|( ", "|(a\\", "|(a\\\r)", "|(a\n)", "|(\u0001)", "|(\u007F)", "|a(b)", "|)" } },
    { "DiversionPrivacy", { "full|;x", "\"a b\"|", "|\"a", "|@" } },
    // hosts
    { "DomainLabel", { "a-b|.c", "a|--", "a--b|-", "|-a", "%41b|", "a-%41|", "a|%4", "a|_b" } },
    { "Hostname", { "example.com|:5060", "example.com.|", "a.|.b", "a.|-b", "a|-.b", "|.a", "1.2|", "a.|_" } },
    { "IpV6Reference", { "[2001:db8::1]|:5060", "[::ffff:192.0.2.1]|", "|[::1", "|::1]", "|[]", "|[::1x]" } },
    { "Host",
      { "192.0.2.1|", "192.0.2.1.example|", "1.2.3.4.|", "999.1|", "[::1]|:5060", "|[::1", "|::1", "a|_b", "|-a" } },
    { "HostPort", { "a.b:5060|;x", "a|:", "a|:x", "a| :5", "[::1]:5|", "|:5060" } },
    { "SipCleanMsgId", // the longest of dot-atom, host name and IPv6 reference
      { "20398823.2UWQFN309shb3@referee.example|", "a@b_c|", "a@b.|", "a@[::1]|", "|a.b", "|a@", "|@b", "|a.@b" } },
    { "CallId", { "f81d4fae@10.1.1.1|;x", "a|", "a@b|@c", "|a@", "|@a", "|a@ b" } },
    // addresses
    { "AddrSpec",
      { "sip:a@b|;c=d", "sip:a@b|", "sip:a@b|>", "sip:a@b?c=d|;e", "sip:a|%4;1", "sip:a@[::1]|;b", "sip:\u20AC|;x",
        "http://a:80/b//c|;d", "http://a:80|,http://b;c", "http://a:|b;c@d", "http://a:b@c|;d", "http://a|;b/c",
        "|ab//c:d", "|;sip:a", "|si;p:a", "|sip" } },
    { "DisplayName", { "\"Bob\"| <", "Bob T. Builder| <", "Bob|\t ", "|\"Bob <", "|<", "| Bob" } },
    { "NameAddr",
      { "<sip:a>|", " <sip:a> |;x", "\"A<\" <sip:a;b>|;c", "Bob T. <sip:a>|", "Bob<sip:a>|", "|Bob", "|Bob <sip:a",
        "| Bob <sip:a>", "|<sip:a >", "|< sip:a>", "|<>", "|\"A\" B <sip:a>", "|sip:a" } },
    { "IdentityValue", { "\"A\" <sip:a>|;b", "tel:+1|;b", "|<tel:+1", "|A" } },
    { "Contact",
      { "sip:a;q=0.5|,", "<sip:a;b> ; q = 0.5| ,", "<sip:a>|;=", "<sip:a> |;", "sip:a|;b=", "|*", "|A sip:a" } },
    { "Diversion", { "A <tel:+1>;reason=no-answer;counter=1|,", "<tel:+1>|", "|tel:+1" } },
    { "AlertInfo", { " <http://a/b>;appearance=2| ", "<urn:x>|", "|A <urn:x>", "|urn:x" } },
    { "SipInstance", { "<urn:uuid:0-1>|\"", "<%41>|", "|<>", "|<a", "|<a b>", "| <a>", "|<a%4>" } },
    // parameters
    { "GenericParam",
      { "x|", "x=y|;z", "x = y| ", "x| ", "x=[::1]|", "x=\"a b\"|;", "x= \"a\"|", "x=1.2.3.4|:5", "|x=", "|x=;",
        "|x=\"a", "|x=[::1", "|=y", "|;x" } },
    { "GenericParams", { ";a;b=c ; d = \"e\"|,", ";a|;", ";a| ; b=", ";a=1| ", "|a;b", "|;", "|;;a" } },
    { "AcceptEncoding", { "gzip;q=1.0|", "*|", "| gzip", "|;q=1" } },
    { "Accept",
      { "application/sdp;level=1|,", "* / * ;q=0.1|", "text/*|", "|*/sdp", "|*/*x", "*x/sdp|", "text/*x|", "|text",
        "|text/", "|text/;q=1", "|/*", "text/*| " } },
    { "Reason", { "SIP ;cause=200;text=\"a b\"|,", "Q.850|", "|\"a\"" } },
    { "UuiValue", { "00ab;encoding=hex|", "\"a b\" ; c|", "a|;", "|\"a" } },
    // numbers
    { "Qvalue", { "0|", "0.|", "0.123|4", "0.5|;", "1.000|0", "1.|5", "1.0|5", "0|0", "|2", "|.5" } },
    { "DiversionCounter", { "12|3", "7|;", "|a" } },
    { "HistoryInfoIndex", { "1.2.10|;", "1|", "0.0|", "1|.", "1|..2", "|01", "|1.02", "|1.00", "|.1" } },
    { "TimestampValue",
      { "54|", "54.|", "54.21 0.5|x", "54 |", "54 |x", "54 .5|", "54\t .|", "1.2|.3", "|.5", "| 5" } },
    { "WarnCode", { "370| x", "|37", "|3701", "370|a" } },
    // free text
    { "Subject", { "Need  more\tboxes| ", "\u00E4 \u20AC|", "a|\u0001b", "a|\u007F", "a| \u007F", "a|\r\n b", "| a" } },
    { "ServerVal", { "Phone/1.2| x", "Phone / 1.2|", "Phone|/", "Phone| /", "(a) |x", "|/1", "|(a" } },
    { "Server", // the whitespace after a comment belongs to it
      { "Phone/1.2 (beta) Stack/3| ", "Phone(a)(b)|", "Phone|  ", "Phone| (a", "Phone/1| /2", "(a)  |", "|@",
        "| Phone" } },
    { "WarnAgent", { "isi.edu:80| ", "a|:", "_a|", "a|_b", "[::1]|", "|@" } },
    { "WarningValue",
      { "301 isi.edu \"a b\"|,", "307\t a:80  \"\"|", "301 _ \"a\"|", "|301isi.edu \"a\"", "|301 isi.edu\"a\"",
        "|301 isi.edu a", "|3011 isi.edu \"a\"", "|301 a_b \"a\"" } },
    // Via
    { "Via", // an address that "received" does not take makes it a generic parameter
      { "SIP/2.0/UDP host|", "SIP / 2.0 / UDP host:5060;branch=z9|", "SIP/2.0/TCP\t [::1] : 5060 ; rport|,",
        "SIP/2.0/UDP h;received=::1;ttl=1|", "SIP/2.0/UDP h;received=[::1]|",

        "SIP/2.0/UDP h;received=::1|x;a", "SIP/2.0/UDP h;received;a|", "SIP/2.0/UDP h|;a=::1", "SIP/2.0/UDP h|;",
        "SIP/2.0/UDP h ;a| ", "|SIP/2.0/UDPhost", "|SIP/2.0/UDP",

        "|SIP/2.0 h",

        "|SIP//UDP h", "|SIP/2.0/UDP h:",

        "|SIP/2.0/UDP :5060" } },
    { "ViaReceived",
      { "received=192.0.2.1|;a", "ReceiveD = 2001:db8::1|", "received=::ffff:192.0.2.1|", "|received=[::1]",
        "|received=a", "|received", "|receive", "|received=" } },
    { "ViaParams", { "received=::1|", "received=[::1]|", "ttl=1|;a", "|ttl=", "|;a" } },
};

TEST( SkipTest, ProductionsMatchWhatIsTheirs )
{
    for( const auto &[ name, texts ] : rows ) {
        Production *const production = Find( name );
        for( const char *text : texts ) {
            const MarkedText marked{ text };
            EXPECT_EQ( production( marked.all.data(), int64_t( marked.all.size() ) ), marked.matched )
                << name << " of " << text;
        }
    }
}

// Productions that are others under further names.
const struct
{
    Production                 *original;
    std::vector< const char * > names;
} aliases[] = {
    { sipsn___SkipToken,
      { "Branch", "ContentCoding", "DispositionType", "EmParam", "EventReasonValue", "Handling", "MessageHeaderName",
        "Method", "OptionTag", "PriorityValue", "PrivValue", "ProtocolName", "ProtocolVersion", "Pseudonym", "Purpose",
        "ReasonProtocol", "SubstateValue", "Tag", "Transport" } },
    { sipsn___SkipDigits, { "DeltaSeconds", "ReasonCause", "Ttl" } },
    { sipsn___SkipQuotedString, { "ReasonText", "WarnText" } },
    { iri___SkipIpV4Address, { "IpV4Address" } },
    { iri___SkipIpV6Address, { "IpV6Address" } },
    { iri___SkipPort, { "Port" } },
    { iri___SkipIri, { "Uri" } },
    { sipsn___SkipMediaSubtype, { "MediaType" } },
    { sipsn___SkipDiversionCounter, { "DiversionLimit" } },
    { sipsn___SkipDiversionPrivacy, { "DiversionReason", "DiversionScreen" } },
    { sipsn___SkipDiversion, { "HistoryInfo", "Route" } },
    { sipsn___SkipSws, { "Lws" } },
    { sipsn___SkipColon, { "Hcolon" } },
    { sipsn___SkipAlertInfo, { "CallInfo", "ErrorInfo" } },
    { sipsn___SkipSubject, { "Organization" } },
    { sipsn___SkipServer, { "UserAgent" } },
};

TEST( SkipTest, AliasesMatchWhatTheirOriginalsDo )
{
    for( const Row &row : rows )
        for( const char *text : row.texts ) {
            const auto chs = MarkedText{ text }.all;
            for( const auto &[ original, names ] : aliases )
                for( const char *name : names )
                    EXPECT_EQ( Find( name )( chs.data(), int64_t( chs.size() ) ),
                               original( chs.data(), int64_t( chs.size() ) ) )
                        << name << " of " << text;
        }
}

TEST( SkipTest, EveryProductionIsTried )
{
    std::set< std::string > tried = { "Char",  "CharSws", "SwsChar", "SwsCharSws", "Chars", "CharsAsciiCaseFold",
                                      "Month", "Wkday" };
    for( const Row &row : rows ) tried.insert( row.name );
    for( const auto &alias : aliases ) tried.insert( alias.names.begin(), alias.names.end() );
    for( const std::string &name : ExportsBetween( "sipsn___Skip", "" ) ) EXPECT_TRUE( tried.contains( name ) ) << name;
}

// ---- With further arguments ------------------------------------------------------------------------

TEST( SkipTest, GivenCharacter )
{
    struct
    {
        const char *text;
        int64_t     direct, charSws, swsChar, swsCharSws;
    } const cases[] = {
        { " \t@ \tx", 0, 0, 3, 5 }, { "@", 1, 1, 1, 1 },  { "@x", 1, 1, 1, 1 }, { "@ x", 1, 2, 1, 2 },
        { "@  x", 1, 3, 1, 3 },     { "x@", 0, 0, 0, 0 }, { "@ ", 1, 2, 1, 2 }, { "  ", 0, 0, 0, 0 },
    };
    for( const auto &[ text, direct, charSws, swsChar, swsCharSws ] : cases )
        for( const PbChar ch : { PbChar( '@' ), PbChar( 0x10FFFF ) } ) {
            auto chs = Chars( text );
            std::replace( chs.begin(), chs.end(), PbChar( '@' ), ch );
            const int64_t length = int64_t( chs.size() );
            EXPECT_EQ( sipsn___SkipChar( chs.data(), length, ch ), direct ) << text;
            EXPECT_EQ( sipsn___SkipCharSws( chs.data(), length, ch ), charSws ) << text;
            EXPECT_EQ( sipsn___SkipSwsChar( chs.data(), length, ch ), swsChar ) << text;
            EXPECT_EQ( sipsn___SkipSwsCharSws( chs.data(), length, ch ), swsCharSws ) << text;
        }
    const auto blanks = Chars( " \t x" ); // a blank is taken for whitespace
    EXPECT_EQ( sipsn___SkipSwsChar( blanks.data(), 4, ' ' ), 0 );
    EXPECT_EQ( sipsn___SkipSwsCharSws( blanks.data(), 4, ' ' ), 0 );
}

TEST( SkipTest, GivenText )
{
    struct
    {
        const char *text, *pattern;
        int64_t     exact, folded;
    } const cases[] = {
        { "expires=1", "expires", 7, 7 },
        { "eXpires=1", "ExpireS", 0, 7 },
        { "expire", "expires", 0, 0 },
        { "[", "{", 0, 0 },           // 32 apart, but no letters
        { "\u00C4", "\u00E4", 0, 0 }, // letters, but not of ASCII
        { "\u00E4x", "\u00E4", 1, 1 },
        { "expires", "", 0, 0 },
        { "", "", 0, 0 },
    };
    for( const auto &[ text, pattern, exact, folded ] : cases ) {
        const auto    chs = Chars( text ), part = Chars( pattern );
        const int64_t length = int64_t( chs.size() ), partLength = int64_t( part.size() );
        EXPECT_EQ( sipsn___SkipChars( chs.data(), length, part.data(), partLength ), exact ) << text;
        EXPECT_EQ( sipsn___SkipCharsAsciiCaseFold( chs.data(), length, part.data(), partLength ), folded ) << text;
    }
}

TEST( SkipTest, NamesOfMonthsAndDays )
{
    const auto expectNames = []( auto skip, int64_t first, const std::vector< const char * > &names ) {
        for( size_t at = 0; at < names.size(); ++at ) {
            int64_t number = -1;
            EXPECT_EQ( skip( Chars( names[ at ] ).data(), 3, &number ), 3 );
            EXPECT_EQ( number, first + int64_t( at ) );
        }
        for( const std::string none : { "jan", "JAN", "Ja", "anF", "onT", "mon", "Mo" } )
            EXPECT_EQ( skip( Chars( none ).data(), int64_t( none.size() ), nullptr ), 0 ) << none;
    };
    expectNames( sipsn___SkipMonth, 1,
                 { "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" } );
    expectNames( sipsn___SkipWkday, 0, { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" } );
}

TEST( SkipTest, DeepComments )
{
    const std::string open( 100'000, '(' ), close( 100'000, ')' );
    EXPECT_EQ( sipsn___SkipComment( Chars( open + close ).data(), 200'000 ), 200'000 );
    EXPECT_EQ( sipsn___SkipComment( Chars( open + close ).data(), 199'999 ), 0 );
}

TEST( SkipDeathTest, BadArguments )
{
    const PbChar text[] = { 'a' };
    EXPECT_ABORT( "length >= 0", sipsn___SkipToken( text, -1 ) );
    EXPECT_ABORT( "chs || length == 0", sipsn___SkipVia( nullptr, 1 ) );
    EXPECT_ABORT( "PB_CHAR_OK( ch )", sipsn___SkipSwsCharSws( text, 1, -1 ) );
    EXPECT_ABORT( "pattern || patternLength == 0", sipsn___SkipChars( text, 1, nullptr, 1 ) );
    EXPECT_ABORT( "patternLength >= 0", sipsn___SkipCharsAsciiCaseFold( text, 1, text, -1 ) );
}

} // namespace
