// The grammar scanner: what each production matches of a text, and what holds for all of them on any text.
#include "sipsn/sipsn_skip_internal.h"

#include "iri/iri_internal.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <dlfcn.h>
#include <fstream>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Production = int64_t( const PbChar *chs, int64_t length );

// A text in a block of exactly its size, so that the address sanitizer sees who looks past the end.
struct Block
{
    explicit Block( std::u32string_view text ) : length( int64_t( text.size() ) ), chs( new PbChar[ text.size() ] )
    {
        std::copy( text.begin(), text.end(), chs.get() );
    }

    int64_t                     length;
    std::unique_ptr< PbChar[] > chs;
};

int64_t Count( Production *production, std::u32string_view text )
{
    const Block block{ text };
    return production( block.chs.get(), block.length );
}

std::string Printable( std::u32string_view text )
{
    std::string printable;
    for( const char32_t ch : text )
        if( ch >= 32 && ch < 127 )
            printable += char( ch );
        else
            printable += "{" + std::to_string( uint32_t( ch ) ) + "}";
    return printable;
}

struct Case
{
    std::u32string_view text;
    int64_t             count;
};

struct Group
{
    const char         *name;
    Production         *production;
    std::vector< Case > cases;
};

void Check( const std::vector< Group > &groups )
{
    for( const auto &[ name, production, cases ] : groups ) {
        EXPECT_EQ( Count( production, U"" ), 0 ) << name << " of nothing";
        for( const auto &[ text, count ] : cases )
            EXPECT_EQ( Count( production, text ), count ) << name << " of " << Printable( text );
    }
}

#define PRODUCTION( name ) #name, sipsn___Skip##name

// ---- What each production matches ------------------------------------------------------------------

TEST( SkipTest, SingleCharacters )
{
    Check( {
        { PRODUCTION( Sws ), { { U" \t x", 3 }, { U"x ", 0 }, { U"\r\n ", 0 }, { U"\u00A0", 0 } } },
        { PRODUCTION( Lws ), { { U"\t x", 2 }, { U"x", 0 }, { U" \r\n x", 1 } } },
        { PRODUCTION( Colon ), { { U":", 1 }, { U" \t:\t x", 5 }, { U"  ", 0 }, { U"x:", 0 } } },
        { PRODUCTION( Hcolon ), { { U" : x", 3 }, { U"::", 1 } } },
        { PRODUCTION( Comma ), { { U" , ,", 3 }, { U";", 0 } } },
        { PRODUCTION( Equal ), { { U" = =", 3 }, { U":", 0 } } },
        { PRODUCTION( Semi ), { { U" ; ;", 3 }, { U",", 0 } } },
        { PRODUCTION( Slash ), { { U" / /", 3 }, { U"\\", 0 } } },
        { PRODUCTION( Star ), { { U" * *", 3 }, { U"+", 0 } } },
        { PRODUCTION( Lparen ), { { U" ( (", 3 }, { U")", 0 } } },
        { PRODUCTION( Rparen ), { { U" ) )", 3 }, { U"(", 0 } } },
        { PRODUCTION( Laquot ), { { U"  <a", 3 }, { U"< a", 1 }, { U">", 0 } } },
        { PRODUCTION( Raquot ), { { U"> ;", 2 }, { U" >", 0 }, { U"<", 0 } } },
        { PRODUCTION( Ldquot ), { { U" \t\" a", 3 }, { U"'", 0 } } },
        { PRODUCTION( Rdquot ), { { U"\" \t;", 3 }, { U" \"", 0 } } },
    } );
}

TEST( SkipTest, GivenCharacter )
{
    const Block spaced{ U" \t@ \tx" };
    EXPECT_EQ( sipsn___SkipChar( spaced.chs.get(), spaced.length, '@' ), 0 );
    EXPECT_EQ( sipsn___SkipCharSws( spaced.chs.get(), spaced.length, '@' ), 0 );
    EXPECT_EQ( sipsn___SkipSwsChar( spaced.chs.get(), spaced.length, '@' ), 3 );
    EXPECT_EQ( sipsn___SkipSwsCharSws( spaced.chs.get(), spaced.length, '@' ), 5 );
    EXPECT_EQ( sipsn___SkipSwsCharSws( spaced.chs.get(), spaced.length, 'x' ), 0 );

    for( const char32_t *text : { U"@", U"@x", U"@ x", U"@  x" } ) { // all but the last character
        const Block item{ text };
        EXPECT_EQ( sipsn___SkipSwsCharSws( item.chs.get(), item.length, '@' ), item.length == 1 ? 1 : item.length - 1 );
    }
    EXPECT_EQ( sipsn___SkipSwsChar( spaced.chs.get(), spaced.length, ' ' ), 0 ) << "a blank is taken for whitespace";
    EXPECT_EQ( sipsn___SkipSwsCharSws( spaced.chs.get(), spaced.length, ' ' ), 0 );

    const Block direct{ U"\U0010FFFF  " };
    EXPECT_EQ( sipsn___SkipChar( direct.chs.get(), direct.length, 0x10FFFF ), 1 );
    EXPECT_EQ( sipsn___SkipChar( direct.chs.get(), 0, 0x10FFFF ), 0 );
    EXPECT_EQ( sipsn___SkipCharSws( direct.chs.get(), direct.length, 0x10FFFF ), 3 );
    EXPECT_EQ( sipsn___SkipSwsChar( direct.chs.get(), direct.length, 0x10FFFF ), 1 );
}

TEST( SkipTest, GivenText )
{
    struct
    {
        std::u32string_view text, pattern;
        int64_t             exact, folded;
    } const cases[] = {
        { U"expires=1", U"expires", 7, 7 },
        { U"eXpires=1", U"ExpireS", 0, 7 },
        { U"expire", U"expires", 0, 0 },
        { U"[", U"{", 0, 0 },           // 32 apart, but no letters
        { U"\u00C4", U"\u00E4", 0, 0 }, // letters, but not of ASCII
        { U"\u00E4x", U"\u00E4", 1, 1 },
        { U"expires", U"", 0, 0 },
        { U"", U"", 0, 0 },
    };
    for( const auto &[ text, pattern, exact, folded ] : cases ) {
        const Block in{ text }, part{ pattern };
        EXPECT_EQ( sipsn___SkipChars( in.chs.get(), in.length, part.chs.get(), part.length ), exact )
            << Printable( text );
        EXPECT_EQ( sipsn___SkipCharsAsciiCaseFold( in.chs.get(), in.length, part.chs.get(), part.length ), folded )
            << Printable( text );
    }
}

TEST( SkipTest, Tokens )
{
    Check( {
        { PRODUCTION( Token ),
          { { U"INVITE sip:", 6 }, { U"a.b-c!%*_+`'~@", 13 }, { U"\u00E9", 0 }, { U"a\u00E9", 1 } } },
        { PRODUCTION( TokenNodot ), { { U"a-b.c", 3 }, { U".a", 0 } } },
        { PRODUCTION( Atom ), { { U"a%b.c", 3 }, { U".a", 0 }, { U"@", 0 } } },
        { PRODUCTION( DotAtom ), { { U"a.b.c@d", 5 }, { U"a.", 1 }, { U"a..b", 1 }, { U".a", 0 } } },
        { PRODUCTION( Word ), { { U"a<b>:\\\"/[c]?{d}()@x", 17 }, { U"@", 0 }, { U"a;b", 1 }, { U"a b", 1 } } },
        { PRODUCTION( Digits ), { { U"0123456789012345678901234567890a", 31 }, { U"-1", 0 }, { U"\u0661", 0 } } },
        { PRODUCTION( User ),
          { { U"a;b?c/d%41&=+$,@h", 15 }, { U"a%4g", 1 }, { U"a%4", 1 }, { U"%", 0 }, { U":", 0 } } },
        { PRODUCTION( Password ), { { U"a&=+$,%Af@", 9 }, { U"a;b", 1 }, { U"/", 0 } } },
        { PRODUCTION( Uric ), { { U";/?:@&=+$,%00a>", 14 }, { U"a[", 1 }, { U"%%41", 0 }, { U"%41%", 3 } } },
        { PRODUCTION( Pvalue ), { { U"[]/:&+$a%7F;", 11 }, { U"a?b", 1 }, { U"@", 0 }, { U"%zz", 0 } } },
        { PRODUCTION( Epid ),
          { { U"0123456789abcdefghij", 16 }, { U"0123456789abcdef", 16 }, { U"a b", 1 }, { U"@", 0 } } },
        { PRODUCTION( SessUuid ),
          { { U"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 32 },
            { U"0123456789abcdef0123456789abcdefA", 32 },
            { U"0123456789abcdef0123456789abcdef0", 32 },
            { U"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 0 },
            { U"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzZ", 0 },
            { U"Zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 0 } } },
        { PRODUCTION( EventType ), { { U"presence.winfo;id", 14 }, { U"a.", 1 }, { U"a..b", 1 }, { U".a", 0 } } },
        { PRODUCTION( Rvalue ),
          { { U"dsn.flash-override", 18 }, { U"a.b.c", 3 }, { U"a", 0 }, { U"a.", 0 }, { U".b", 0 } } },
        { PRODUCTION( MediaSubtype ), { { U"*", 0 }, { U"*x", 2 }, { U"**", 2 }, { U"*;q=1", 0 }, { U"sdp", 3 } } },
        { PRODUCTION( Refresher ), { { U"uac", 3 }, { U"UaS", 3 }, { U"uacs", 3 }, { U"ua", 0 }, { U"uab", 0 } } },
        { PRODUCTION( Version ),
          { { U"SIP/2.0 200", 7 }, { U"SIP / 2.0", 9 }, { U"SIP/", 0 }, { U"SIP 2.0", 0 }, { U"/2.0", 0 } } },
    } );
}

TEST( SkipTest, QuotedStringsAndComments )
{
    Check( {
        { PRODUCTION( QuotedString ),
          { { UR"("ab\"c")", 7 },
            { UR"("")", 2 },
            { U" \t\"a\" ;", 5 },
            { UR"("a\\" ")", 5 },
            { U"\"\u20AC\u0001\"", 4 },
            { U"\"\\\u20AC\"", 4 },
            { UR"(")", 0 },
            { UR"("abc)", 0 },
            { UR"("abc\")", 0 },
            { UR"("abc\)", 0 },
            { U"\"a\nb\"", 0 },
            { U"\"a\rb\"", 0 },
            { U"\"a\\\nb\"", 0 },
            { U"\"a\\\rb\"", 0 },
            { U"   ", 0 },
            { UR"(a"b")", 0 } } },
        { PRODUCTION( Comment ),
          { { U"(a (b) c)", 9 },
            { U" ( a ) \tx", 8 },
            { U"()", 2 },
            { U"(a)(b)", 3 },
            { U"(((())))", 8 },
            { UR"((\)\(\\))", 8 },
            { U"(\u20AC\\\u20AC)", 5 },
            { U"(\\\u0001)", 4 },
            { U"(a (b)", 0 },
            { U"(", 0 },
            { U"( ", 0 },
            { U"(a\\", 0 },
            { U"(a\\\r)", 0 },
            { U"(a\n)", 0 },
            { U"(\u0001)", 0 },
            { U"(\u007F)", 0 },
            { U"a(b)", 0 },
            { U")", 0 } } },
        { PRODUCTION( DiversionPrivacy ), { { U"full;x", 4 }, { U"\"a b\"", 5 }, { U"\"a", 0 }, { U"@", 0 } } },
    } );
}

TEST( SkipTest, DeepComments )
{
    const std::u32string open( 100'000, U'(' ), close( 100'000, U')' );
    EXPECT_EQ( Count( sipsn___SkipComment, open + close ), 200'000 );
    EXPECT_EQ( Count( sipsn___SkipComment, open + close.substr( 1 ) ), 0 );
}

TEST( SkipTest, Hosts )
{
    Check( {
        { PRODUCTION( DomainLabel ),
          { { U"a-b.c", 3 },
            { U"a--", 1 },
            { U"a--b-", 4 },
            { U"-a", 0 },
            { U"%41b", 4 },
            { U"a-%41", 5 },
            { U"a%4", 1 },
            { U"a_b", 1 } } },
        { PRODUCTION( Hostname ),
          { { U"example.com:5060", 11 },
            { U"example.com.", 12 },
            { U"a..b", 2 },
            { U"a.-b", 2 },
            { U"a-.b", 1 },
            { U".a", 0 },
            { U"1.2", 3 },
            { U"a._", 2 } } },
        { PRODUCTION( IpV4Address ), { { U"192.0.2.1:5060", 9 }, { U"1.2.3", 0 }, { U"256.1.1.1", 0 } } },
        { PRODUCTION( IpV6Address ), { { U"2001:db8::1]", 11 }, { U"[::1]", 0 }, { U"::", 2 } } },
        { PRODUCTION( IpV6Reference ),
          { { U"[2001:db8::1]:5060", 13 },
            { U"[::ffff:192.0.2.1]", 18 },
            { U"[::1", 0 },
            { U"::1]", 0 },
            { U"[]", 0 },
            { U"[::1x]", 0 } } },
        { PRODUCTION( Port ), { { U"5060;", 4 }, { U"x", 0 } } },
        { PRODUCTION( Host ),
          { { U"192.0.2.1", 9 },
            { U"192.0.2.1.example", 17 },
            { U"1.2.3.4.", 8 },
            { U"999.1", 5 },
            { U"[::1]:5060", 5 },
            { U"[::1", 0 },
            { U"::1", 0 },
            { U"a_b", 1 },
            { U"-a", 0 } } },
        { PRODUCTION( HostPort ),
          { { U"a.b:5060;x", 8 }, { U"a:", 1 }, { U"a:x", 1 }, { U"a :5", 1 }, { U"[::1]:5", 7 }, { U":5060", 0 } } },
        { PRODUCTION( SipCleanMsgId ),
          { { U"20398823.2UWQFN309shb3@referee.example", 38 },
            { U"a@b_c", 5 },   // a dot-atom
            { U"a@b.", 4 },    // a host name
            { U"a@[::1]", 7 }, // an IPv6 reference
            { U"a.b", 0 },
            { U"a@", 0 },
            { U"@b", 0 },
            { U"a.@b", 0 } } },
        { PRODUCTION( CallId ),
          { { U"f81d4fae@10.1.1.1;x", 17 },
            { U"a", 1 },
            { U"a@b@c", 3 },
            { U"a@", 0 },
            { U"@a", 0 },
            { U"a@ b", 0 } } },
    } );
}

TEST( SkipTest, Addresses )
{
    Check( {
        { PRODUCTION( Uri ),
          { { U"sip:a@b;c?d>", 11 }, { U"sip:", 4 }, { U"sip", 0 }, { U":a", 0 }, { U" sip:a", 0 } } },
        { PRODUCTION( AddrSpec ),
          { { U"sip:a@b;c=d", 7 },
            { U"sip:a@b", 7 },
            { U"sip:a@b>", 7 },
            { U"sip:a@b?c=d;e", 11 },
            { U"sip:a%4;1", 5 },
            { U"sip:a@[::1];b", 11 },
            { U"sip:\u20AC;x", 5 },
            { U"http://a:80/b//c;d", 16 },
            { U"http://a:80,http://b;c", 11 },
            { U"http://a:b;c@d", 9 }, // with all of it, "a:b;c@" were a user
            { U"http://a:b@c;d", 12 },
            { U"http://a;b/c", 8 },
            { U"ab//c:d", 0 },
            { U";sip:a", 0 },
            { U"si;p:a", 0 },
            { U"sip", 0 } } },
        { PRODUCTION( DisplayName ),
          { { U"\"Bob\" <", 5 },
            { U"Bob T. Builder <", 14 },
            { U"Bob\t ", 3 },
            { U"\"Bob <", 0 },
            { U"<", 0 },
            { U" Bob", 0 } } },
        { PRODUCTION( NameAddr ),
          { { U"<sip:a>", 7 },
            { U" <sip:a> ;x", 9 },
            { U"\"A<\" <sip:a;b>;c", 14 },
            { U"Bob T. <sip:a>", 14 },
            { U"Bob<sip:a>", 10 },
            { U"Bob", 0 },
            { U"Bob <sip:a", 0 },
            { U" Bob <sip:a>", 0 },
            { U"<sip:a >", 0 },
            { U"< sip:a>", 0 },
            { U"<>", 0 },
            { U"\"A\" B <sip:a>", 0 },
            { U"sip:a", 0 } } },
        { PRODUCTION( IdentityValue ),
          { { U"\"A\" <sip:a>;b", 11 }, { U"tel:+1;b", 6 }, { U"<tel:+1", 0 }, { U"A", 0 } } },
        { PRODUCTION( Contact ),
          { { U"sip:a;q=0.5,", 11 },
            { U"<sip:a;b> ; q = 0.5 ,", 19 },
            { U"<sip:a>;=", 7 },
            { U"<sip:a> ;", 8 },
            { U"sip:a;b=", 5 },
            { U"*", 0 },
            { U"A sip:a", 0 } } },
        { PRODUCTION( Diversion ),
          { { U"A <tel:+1>;reason=no-answer;counter=1,", 37 }, { U"<tel:+1>", 8 }, { U"tel:+1", 0 } } },
        { PRODUCTION( AlertInfo ),
          { { U" <http://a/b>;appearance=2 ", 26 }, { U"<urn:x>", 7 }, { U"A <urn:x>", 0 }, { U"urn:x", 0 } } },
        { PRODUCTION( SipInstance ),
          { { U"<urn:uuid:0-1>\"", 14 },
            { U"<%41>", 5 },
            { U"<>", 0 },
            { U"<a", 0 },
            { U"<a b>", 0 },
            { U" <a>", 0 },
            { U"<a%4>", 0 } } },
    } );
}

TEST( SkipTest, Parameters )
{
    Check( {
        { PRODUCTION( GenericParam ),
          { { U"x", 1 },
            { U"x=y;z", 3 },
            { U"x = y ", 5 },
            { U"x ", 1 },
            { U"x=[::1]", 7 },
            { U"x=\"a b\";", 7 },
            { U"x= \"a\"", 6 },
            { U"x=1.2.3.4:5", 9 },
            { U"x=", 0 },
            { U"x=;", 0 },
            { U"x=\"a", 0 },
            { U"x=[::1", 0 },
            { U"=y", 0 },
            { U";x", 0 } } },
        { PRODUCTION( GenericParams ),
          { { U";a;b=c ; d = \"e\",", 16 },
            { U";a;", 2 },
            { U";a ; b=", 2 },
            { U";a=1 ", 4 },
            { U"a;b", 0 },
            { U";", 0 },
            { U";;a", 0 } } },
        { PRODUCTION( AcceptEncoding ), { { U"gzip;q=1.0", 10 }, { U"*", 1 }, { U" gzip", 0 }, { U";q=1", 0 } } },
        { PRODUCTION( Accept ),
          { { U"application/sdp;level=1,", 23 },
            { U"* / * ;q=0.1", 12 },
            { U"text/*", 6 },
            { U"*/sdp", 0 },
            { U"*/*x", 0 },
            { U"*x/sdp", 6 },
            { U"text/*x", 7 },
            { U"text", 0 },
            { U"text/", 0 },
            { U"text/;q=1", 0 },
            { U"/*", 0 },
            { U"text/* ", 6 } } },
        { PRODUCTION( Reason ), { { U"SIP ;cause=200;text=\"a b\",", 25 }, { U"Q.850", 5 }, { U"\"a\"", 0 } } },
        { PRODUCTION( UuiValue ),
          { { U"00ab;encoding=hex", 17 }, { U"\"a b\" ; c", 9 }, { U"a;", 1 }, { U"\"a", 0 } } },
    } );
}

TEST( SkipTest, Numbers )
{
    Check( {
        { PRODUCTION( Qvalue ),
          { { U"0", 1 },
            { U"0.", 2 },
            { U"0.1234", 5 },
            { U"0.5;", 3 },
            { U"1.0000", 5 },
            { U"1.5", 2 },
            { U"1.05", 3 },
            { U"00", 1 },
            { U"2", 0 },
            { U".5", 0 } } },
        { PRODUCTION( DiversionCounter ), { { U"123", 2 }, { U"7;", 1 }, { U"a", 0 } } },
        { PRODUCTION( HistoryInfoIndex ),
          { { U"1.2.10;", 6 },
            { U"1", 1 },
            { U"0.0", 3 },
            { U"1.", 1 },
            { U"1..2", 1 },
            { U"01", 0 },
            { U"1.02", 0 },
            { U"1.00", 0 },
            { U".1", 0 } } },
        { PRODUCTION( TimestampValue ),
          { { U"54", 2 },
            { U"54.", 3 },
            { U"54.21 0.5x", 9 },
            { U"54 ", 3 },
            { U"54 x", 3 },
            { U"54 .5", 5 },
            { U"54\t .", 5 },
            { U"1.2.3", 3 },
            { U".5", 0 },
            { U" 5", 0 } } },
        { PRODUCTION( WarnCode ), { { U"370 x", 3 }, { U"37", 0 }, { U"3701", 0 }, { U"370a", 3 } } },
    } );
}

TEST( SkipTest, FreeText )
{
    Check( {
        { PRODUCTION( Subject ),
          { { U"Need  more\tboxes ", 16 },
            { U"\u00E4 \u20AC", 3 },
            { U"a\u0001b", 1 },
            { U"a\u007F", 1 },
            { U"a \u007F", 1 },
            { U"a\r\n b", 1 },
            { U" a", 0 } } },
        { PRODUCTION( ServerVal ),
          { { U"Phone/1.2 x", 9 },
            { U"Phone / 1.2", 11 },
            { U"Phone/", 5 },
            { U"Phone /", 5 },
            { U"(a) x", 4 },
            { U"/1", 0 },
            { U"(a", 0 } } },
        { PRODUCTION( Server ),
          { { U"Phone/1.2 (beta) Stack/3 ", 24 },
            { U"Phone(a)(b)", 11 },
            { U"Phone  ", 5 },
            { U"Phone (a", 5 },
            { U"Phone/1 /2", 7 },
            { U"(a)  ", 5 }, // the whitespace after a comment belongs to it
            { U"@", 0 },
            { U" Phone", 0 } } },
        { PRODUCTION( WarnAgent ),
          { { U"isi.edu:80 ", 10 }, { U"a:", 1 }, { U"_a", 2 }, { U"a_b", 1 }, { U"[::1]", 5 }, { U"@", 0 } } },
        { PRODUCTION( WarningValue ),
          { { U"301 isi.edu \"a b\",", 17 },
            { U"307\t a:80  \"\"", 13 },
            { U"301 _ \"a\"", 9 },
            { U"301isi.edu \"a\"", 0 },
            { U"301 isi.edu\"a\"", 0 },
            { U"301 isi.edu a", 0 },
            { U"3011 isi.edu \"a\"", 0 },
            { U"301 a_b \"a\"", 0 } } }, // the agent is the host "a"
    } );
}

TEST( SkipTest, Via )
{
    Check( {
        { PRODUCTION( Via ),
          { { U"SIP/2.0/UDP host", 16 },
            { U"SIP / 2.0 / UDP host:5060;branch=z9", 35 },
            { U"SIP/2.0/TCP\t [::1] : 5060 ; rport,", 33 },
            { U"SIP/2.0/UDP h;received=::1;ttl=1", 32 },
            { U"SIP/2.0/UDP h;received=[::1]", 28 },  // generic
            { U"SIP/2.0/UDP h;received=a.b", 26 },    // generic
            { U"SIP/2.0/UDP h;received=::1x;a", 26 }, // the parameter goes on
            { U"SIP/2.0/UDP h;received;a", 24 },      // generic
            { U"SIP/2.0/UDP h;a=::1", 13 },
            { U"SIP/2.0/UDP h;", 13 },
            { U"SIP/2.0/UDP h ;a ", 16 },
            { U"SIP/2.0/UDPhost", 0 },
            { U"SIP/2.0/UDP", 0 },
            { U"SIP/2.0/UDP ", 0 },
            { U"SIP/2.0 h", 0 },
            { U"SIP/2.0/ h", 0 },
            { U"SIP//UDP h", 0 },
            { U"SIP/2.0/UDP h:", 0 },
            { U"SIP/2.0/UDP h:;a", 0 },
            { U"SIP/2.0/UDP :5060", 0 } } },
        { PRODUCTION( ViaReceived ),
          { { U"received=192.0.2.1;a", 18 },
            { U"ReceiveD = 2001:db8::1", 22 },
            { U"received=::ffff:192.0.2.1", 25 },
            { U"received=[::1]", 0 },
            { U"received=a", 0 },
            { U"received", 0 },
            { U"receive", 0 },
            { U"received=", 0 } } },
        { PRODUCTION( ViaParams ),
          { { U"received=::1", 12 }, { U"received=[::1]", 14 }, { U"ttl=1;a", 5 }, { U"ttl=", 0 }, { U";a", 0 } } },
    } );
}

TEST( SkipTest, NamesOfMonthsAndDays )
{
    const char32_t *const months[] = { U"Jan", U"Feb", U"Mar", U"Apr", U"May", U"Jun",
                                       U"Jul", U"Aug", U"Sep", U"Oct", U"Nov", U"Dec" };
    const char32_t *const days[]   = { U"Mon", U"Tue", U"Wed", U"Thu", U"Fri", U"Sat", U"Sun" };

    int64_t expected = 1;
    for( const char32_t *const month : months ) {
        const Block block{ month };
        int64_t     number = -1;
        EXPECT_EQ( sipsn___SkipMonth( block.chs.get(), 3, &number ), 3 );
        EXPECT_EQ( sipsn___SkipMonth( block.chs.get(), 3, nullptr ), 3 );
        EXPECT_EQ( number, expected++ );
    }
    expected = 0;
    for( const char32_t *const day : days ) {
        const Block block{ day };
        int64_t     number = -1;
        EXPECT_EQ( sipsn___SkipWkday( block.chs.get(), 3, &number ), 3 );
        EXPECT_EQ( sipsn___SkipWkday( block.chs.get(), 3, nullptr ), 3 );
        EXPECT_EQ( number, expected++ );
    }
    for( const char32_t *const none : { U"jan", U"JAN", U"Ja", U"anF", U"onT", U"mon", U"Mo", U"" } ) {
        const Block block{ none };
        EXPECT_EQ( sipsn___SkipMonth( block.chs.get(), block.length, nullptr ), 0 ) << Printable( none );
        EXPECT_EQ( sipsn___SkipWkday( block.chs.get(), block.length, nullptr ), 0 ) << Printable( none );
    }
}

// ---- Any text --------------------------------------------------------------------------------------

// Productions that are others under another name.
constexpr struct
{
    const char *name;
    Production *production, *original;
} aliases[] = {
    { PRODUCTION( Branch ), sipsn___SkipToken },
    { PRODUCTION( ContentCoding ), sipsn___SkipToken },
    { PRODUCTION( DispositionType ), sipsn___SkipToken },
    { PRODUCTION( EmParam ), sipsn___SkipToken },
    { PRODUCTION( EventReasonValue ), sipsn___SkipToken },
    { PRODUCTION( Handling ), sipsn___SkipToken },
    { PRODUCTION( MessageHeaderName ), sipsn___SkipToken },
    { PRODUCTION( Method ), sipsn___SkipToken },
    { PRODUCTION( OptionTag ), sipsn___SkipToken },
    { PRODUCTION( PriorityValue ), sipsn___SkipToken },
    { PRODUCTION( PrivValue ), sipsn___SkipToken },
    { PRODUCTION( ProtocolName ), sipsn___SkipToken },
    { PRODUCTION( ProtocolVersion ), sipsn___SkipToken },
    { PRODUCTION( Pseudonym ), sipsn___SkipToken },
    { PRODUCTION( Purpose ), sipsn___SkipToken },
    { PRODUCTION( ReasonProtocol ), sipsn___SkipToken },
    { PRODUCTION( SubstateValue ), sipsn___SkipToken },
    { PRODUCTION( Tag ), sipsn___SkipToken },
    { PRODUCTION( Transport ), sipsn___SkipToken },
    { PRODUCTION( DeltaSeconds ), sipsn___SkipDigits },
    { PRODUCTION( ReasonCause ), sipsn___SkipDigits },
    { PRODUCTION( Ttl ), sipsn___SkipDigits },
    { PRODUCTION( ReasonText ), sipsn___SkipQuotedString },
    { PRODUCTION( WarnText ), sipsn___SkipQuotedString },
    { PRODUCTION( IpV4Address ), iri___SkipIpV4Address },
    { PRODUCTION( IpV6Address ), iri___SkipIpV6Address },
    { PRODUCTION( Port ), iri___SkipPort },
    { PRODUCTION( Uri ), iri___SkipIri },
    { PRODUCTION( MediaType ), sipsn___SkipMediaSubtype },
    { PRODUCTION( DiversionLimit ), sipsn___SkipDiversionCounter },
    { PRODUCTION( DiversionReason ), sipsn___SkipDiversionPrivacy },
    { PRODUCTION( DiversionScreen ), sipsn___SkipDiversionPrivacy },
    { PRODUCTION( HistoryInfo ), sipsn___SkipDiversion },
    { PRODUCTION( Route ), sipsn___SkipDiversion },
    { PRODUCTION( Lws ), sipsn___SkipSws },
    { PRODUCTION( Hcolon ), sipsn___SkipColon },
    { PRODUCTION( CallInfo ), sipsn___SkipAlertInfo },
    { PRODUCTION( ErrorInfo ), sipsn___SkipAlertInfo },
    { PRODUCTION( Organization ), sipsn___SkipSubject },
    { PRODUCTION( UserAgent ), sipsn___SkipServer },
};

struct NamedProduction
{
    std::string name;
    Production *production;
};

// Every exported production but the aliases; those with further arguments, with such as match something.
const std::vector< NamedProduction > &Originals()
{
    static const auto originals = [] {
        std::vector< NamedProduction > found = {
            { "Month", []( const PbChar *chs, int64_t length ) { return sipsn___SkipMonth( chs, length, nullptr ); } },
            { "Wkday", []( const PbChar *chs, int64_t length ) { return sipsn___SkipWkday( chs, length, nullptr ); } },
            { "Char", []( const PbChar *chs, int64_t length ) { return sipsn___SkipChar( chs, length, '@' ); } },
            { "CharSws", []( const PbChar *chs, int64_t length ) { return sipsn___SkipCharSws( chs, length, ':' ); } },
            { "SwsChar", []( const PbChar *chs, int64_t length ) { return sipsn___SkipSwsChar( chs, length, '=' ); } },
            { "SwsCharSws",
              []( const PbChar *chs, int64_t length ) { return sipsn___SkipSwsCharSws( chs, length, ',' ); } },
        };
        std::set< std::string > others = { "Chars", "CharsAsciiCaseFold" }; // they take a pattern
        for( const auto &entry : found ) others.insert( entry.name );
        for( const auto &entry : aliases ) others.insert( entry.name );

        constexpr std::string_view prefix = "sipsn___Skip";
        std::ifstream              exports{ SIPSN_SOURCE_DIR "/source/sipsn/sipsn.exports" };
        for( std::string name; std::getline( exports, name ); )
            if( name.starts_with( prefix ) && !others.contains( name.substr( prefix.size() ) ) )
                found.push_back( { name.substr( prefix.size() ),
                                   reinterpret_cast< Production * >( dlsym( RTLD_DEFAULT, name.c_str() ) ) } );
        return found;
    }();
    return originals;
}

// Texts that get far into the productions: made of the pieces that SIP is made of, some of them broken.
std::vector< std::u32string > RandomTexts( size_t count )
{
    static constexpr std::u32string_view starts[] = {
        U"", U"SIP/2.0/UDP ", U"<sip:", U"http://", U"sip:", U"301 ", U"text/", U"\"", U"(", U"received=", U"1.", U"*/",
    };
    static constexpr std::u32string_view pieces[] = {
        U"a",       U"Z9",     U"0",       U"10",      U"01",     U"-",          U".",          U"..",
        U"%",       U"%4",     U"%41",     U"\"",      U"\\",     U"\\)",        U"(",          U")",
        U"<",       U">",      U"[",       U"]",       U"[::1]",  U"::1",        U"1.2.3.4",    U":",
        U":80",     U"//",     U"/",       U"/",       U"?",      U"#",          U"@",          U";",
        U";",       U";a=b",   U"=",       U",",       U" ",      U" ",          U"\t",         U"*",
        U"_",       U"~",      U"sip:",    U"http://", U"uac",    U"Jan",        U"Mon",        U"\r\n",
        U"\n",      U"\u0001", U"\u007F",  U"\u00E9",  U"\u20AC", U"\U0010FFFF", U";received=", U"0123456789abcdef",
        U"\"a b\"", U"(c)",    U"<sip:a>", U"{",       U"|",      U"^",          U"`",          U"'",
        U"+",       U"$",      U"&",       U"!",
    };
    std::mt19937                  random{ 20240930 };
    std::vector< std::u32string > texts;
    const auto                    below = [ &random ]( size_t limit ) { return random() % limit; };
    while( texts.size() < count ) {
        std::u32string text{ starts[ below( std::size( starts ) ) ] };
        for( size_t left = below( 12 ); left > 0; --left ) text += pieces[ below( std::size( pieces ) ) ];
        texts.push_back( std::move( text ) );
    }
    return texts;
}

// A production answers from 0 to the length, looks at nothing past it (which the address sanitizer sees), and what it
// matched is a match of its own: decoders cut it out and read it again.
TEST( SkipTest, ProductionsStayWithinTheText )
{
    ASSERT_EQ( Originals().size() + std::size( aliases ), 113u ) << "beside SkipChars and SkipCharsAsciiCaseFold";

    for( const std::u32string &text : RandomTexts( 5000 ) ) {
        for( const auto &[ name, production ] : Originals() ) {
            const int64_t count = Count( production, text );
            ASSERT_GE( count, 0 ) << name << " of " << Printable( text );
            ASSERT_LE( count, int64_t( text.size() ) ) << name << " of " << Printable( text );
            ASSERT_EQ( Count( production, std::u32string_view{ text }.substr( 0, size_t( count ) ) ), count )
                << name << " of " << Printable( text );
        }
        for( const auto &[ name, production, original ] : aliases )
            ASSERT_EQ( Count( production, text ), Count( original, text ) ) << name << " of " << Printable( text );
    }
}

TEST( SkipTest, AddrSpecIsTheIriBeforeTheFirstSemicolon )
{
    for( const std::u32string &text : RandomTexts( 50'000 ) ) {
        const std::u32string_view before = std::u32string_view{ text }.substr( 0, text.find( U';' ) );
        ASSERT_EQ( Count( sipsn___SkipAddrSpec, text ), Count( iri___SkipIri, before ) ) << Printable( text );
    }
}

TEST( SkipDeathTest, BadArguments )
{
    using testing::HasSubstr;

    const PbChar text[] = { 'a' };
    EXPECT_DEATH( sipsn___SkipToken( text, -1 ), HasSubstr( "length >= 0" ) );
    EXPECT_DEATH( sipsn___SkipVia( nullptr, 1 ), HasSubstr( "chs || length == 0" ) );
    EXPECT_DEATH( sipsn___SkipGenericParams( nullptr, 1 ), HasSubstr( "chs || length == 0" ) );
    EXPECT_DEATH( sipsn___SkipChar( text, 1, 0x110000 ), HasSubstr( "PB_CHAR_OK( ch )" ) );
    EXPECT_DEATH( sipsn___SkipSwsCharSws( text, 1, -1 ), HasSubstr( "PB_CHAR_OK( ch )" ) );
    EXPECT_DEATH( sipsn___SkipChars( text, 1, nullptr, 1 ), HasSubstr( "pattern || patternLength == 0" ) );
    EXPECT_DEATH( sipsn___SkipCharsAsciiCaseFold( text, 1, text, -1 ), HasSubstr( "patternLength >= 0" ) );
    for( const auto &[ name, production ] : Originals() ) EXPECT_EQ( production( nullptr, 0 ), 0 ) << name;
}

} // namespace
