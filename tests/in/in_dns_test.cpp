// Domain names: which are valid, and what they are in ASCII and in Unicode.
#include "in/in.h"

#include "text.h"

#include <idn2.h>
#include <random>
#include <vector>

namespace {

std::string Times( int count, const std::string &piece )
{
    std::string text;
    for( ; count > 0; --count ) text += piece;
    return text;
}

bool IsOk( const std::string &name ) { return inDnsIdnaDomainNameOk( Str( name ).Get() ); }

const std::string longest = Times( 3, std::string( 63, 'a' ) + "." ) + std::string( 61, 'a' ); // 253 characters

TEST( InDns, AsciiNamesAndAddressesPassAsTheSameObject )
{
    const std::vector< std::string > names{
        "Example.COM", "a",          "1",     "3com.example.",         "a-b--c.d",
        "ab--cd",      "999.0.2.9",  "[::1]", "[2001:db8::192.0.2.9]", std::string( 63, 'a' ),
        longest,       longest + "." };
    for( const std::string &text : names ) {
        auto name = Str( text );
        ASSERT_TRUE( inDnsIdnaDomainNameOk( name.Get() ) ) << text;
        pb::Ref ascii{ inDnsIdnaDomainNameToAscii( name.Get() ) };
        pb::Ref unicode{ inDnsIdnaDomainNameToUnicode( name.Get() ) };
        EXPECT_EQ( ascii.Get(), name.Get() ) << text;
        EXPECT_EQ( unicode.Get(), name.Get() ) << text;
    }
}

TEST( InDns, NamesThatAreNone )
{
    const std::vector< std::string > names{
        "", ".", "..", ".a", "a..b", "a..", "-a.b", "a-.b", "a.-", "xn--", "_sip.example", "a b", "a%41", "a/b", "a:1",
        std::string( "a\0b", 3 ), "[::1", "::1", "[]", "[1.2.3.4]", "[::1]:5060", "[::1].", std::string( 64, 'a' ),
        longest + "a", longest + "a.", longest + "..",
        // with a label beyond ASCII
        "b\u00FCcher..example", "-\u00FC", "\u00FC-", "\u00FC_", "\u00FC b", "\u00FC%41", std::string( "\u00FC\0", 3 ),
        "xn--\u00FC", "ab--\u00FC", "a\u3002\u00FC", "a\uFF0E\u00FC", "\uFF41\uFF42", "\u00FC_.example",
        "\u2603.example", "\U0001F600", "\u0308\u00FC", "\u200Da\u00FC", "\u05D0a", "\u00A0", "\u212A;\u037E",
        "\u00FC\u202E", "\uFFFD", "\uE000", "\u00AD\u00FC", Times( 60, "\u00FC" ), Times( 63, "\u00FC" ),
        Times( 64, "\u00FC" ), Times( 100'000, "\u00FC" ),
        Times( 40, "b\u00FCcher." ), // 253 characters at most in Unicode, and more in ASCII
    };
    for( const std::string &name : names ) EXPECT_FALSE( IsOk( name ) ) << name.substr( 0, 300 );

    for( PbChar ch : { 0xD800, 0xDFFF, 0x110000, INT32_MAX, -1, INT32_MIN } ) {
        const PbChar chs[] = { 'a', ch, 0xFC };
        EXPECT_FALSE( inDnsIdnaDomainNameOk( pb::Ref{ pbStringCreateFromCharsCopy( chs, 3 ) }.Get() ) ) << ch;
    }
}

TEST( InDns, LabelsBeyondAsciiHaveAnAsciiForm )
{
    static constexpr struct
    {
        const char *name;
        const char *ascii;
    } cases[] = {
        { "b\u00FCcher.example", "xn--bcher-kva.example" },
        { "WWW.b\u00FCcher.Example.", "WWW.xn--bcher-kva.Example." },
        { "B\u00DCCHER.example", "xn--bcher-kva.example" },   // lower case first
        { "bu\u0308cher.example", "xn--bcher-kva.example" },  // and NFC
        { "fa\u00DF.example", "xn--fa-hia.example" },         // not "fass": IDNA 2008
        { "\u03B2\u03CC\u03BB\u03BF\u03C2", "xn--nxasmm1c" }, // final sigma stays
        { "\u4F8B\u5B50.\u6D4B\u8BD5", "xn--fsqu00a.xn--0zwm56d" },
        { "\u05D0\u05D1.example", "xn--4dbc.example" },
        { "b\u00FCcher.xn--bcher-kva.xn--a", "xn--bcher-kva.xn--bcher-kva.xn--a" },
    };
    for( const auto &[ name, ascii ] : cases ) {
        ASSERT_TRUE( IsOk( name ) ) << name;
        EXPECT_EQ( Take( inDnsIdnaDomainNameToAscii( Str( name ).Get() ) ), ascii );
    }
}

TEST( InDns, OnlyALabelsThatConvertBackBecomeUnicode )
{
    static constexpr struct
    {
        const char *name;
        const char *unicode;
    } cases[] = {
        { "xn--bcher-kva.example", "b\u00FCcher.example" },
        { "WWW.XN--BCHER-KVA.Example.", "WWW.b\u00FCcher.Example." },
        { "xn--fsqu00a.xn--0zwm56d", "\u4F8B\u5B50.\u6D4B\u8BD5" },
        { "b\u00FCcher.xn--bcher-kva", "b\u00FCcher.b\u00FCcher" },
        { "B\u00FCcher.example", "B\u00FCcher.example" },
        { "xn--bcher-kvb.b", "xn--bcher-kvb.b" },
        { "xn--n3h.example", "xn--n3h.example" },       // a snowman, which IDNA 2008 excludes
        { "xn--a.xn--99999999", "xn--a.xn--99999999" }, // no Punycode
        { "xn--example", "xn--example" },
        { "xn--bcher-kva8445foa", "xn--bcher-kva8445foa" }, // brackets around it
    };
    for( const auto &[ name, unicode ] : cases ) {
        ASSERT_TRUE( IsOk( name ) ) << name;
        EXPECT_EQ( Take( inDnsIdnaDomainNameToUnicode( Str( name ).Get() ) ), unicode );
    }
}

// Whatever "xn--" hides, the Unicode form is a name, and its ASCII form the name in lower case where it was converted.
TEST( InDns, ConversionsLeadBack )
{
    static constexpr char digits[] = "abcdefghijklmnopqrstuvwxyz0123456789-ABCZ";
    std::mt19937          random{ 1 };
    int                   converted = 0;
    for( int round = 0; round < 20'000; ++round ) {
        std::string text = "xn--";
        for( auto count = random() % 8 + 1; count > 0; --count ) text += digits[ random() % ( sizeof digits - 1 ) ];
        if( text.back() == '-' ) continue;

        auto    name = Str( text + ".Ab" );
        pb::Ref unicode{ inDnsIdnaDomainNameToUnicode( name.Get() ) };
        ASSERT_TRUE( inDnsIdnaDomainNameOk( unicode.Get() ) ) << text;
        pb::Ref ascii{ inDnsIdnaDomainNameToAscii( unicode.Get() ) };
        pb::Ref again{ inDnsIdnaDomainNameToUnicode( ascii.Get() ) };
        ASSERT_EQ( Text( again.Get() ), Text( unicode.Get() ) ) << text;
        const bool same = pbStringEquals( unicode.Get(), name.Get() );
        converted += !same;
        std::string expected = text;
        if( !same )
            for( char &ch : expected ) ch = char( tolower( ch ) );
        ASSERT_EQ( Text( ascii.Get() ), expected + ".Ab" );
    }
    EXPECT_GT( converted, 500 );
}

// Most letters are not shown to libidn2. It would say the same of each: at the start, between others, and behind a
// letter from right to left.
TEST( InDns, AgreesWithTheLibraryAboutEveryCharacter )
{
    for( PbChar ch = 0x80; ch < 0x30000; ++ch ) {
        const PbChar                hangul   = 0xAC00 + ch * 7 % 11'172;
        const std::vector< PbChar > labels[] = { { ch, 'a', hangul }, { hangul, ch, ch }, { 0x5D0, ch } };
        for( const auto &label : labels ) {
            const pb::Ref name{ pbStringCreateFromCharsCopy( label.data(), int64_t( label.size() ) ) };
            pb::Ref       lower{ pbStringCreateFrom( name.Get() ) };
            pbStringToLower( lower.Slot() );
            const auto chs   = reinterpret_cast< const uint32_t   *>( pbStringBacking( lower.Get() ) );
            char      *ascii = nullptr;
            const bool ok    = idn2_to_ascii_4i2( chs, size_t( pbStringLength( lower.Get() ) ), &ascii,
                                                  IDN2_NFC_INPUT | IDN2_NO_TR46 ) == IDN2_OK;
            ASSERT_EQ( inDnsIdnaDomainNameOk( name.Get() ), ok ) << ch;
            if( ok ) {
                ASSERT_EQ( Take( inDnsIdnaDomainNameToAscii( name.Get() ) ), ascii ) << ch;
            }
            idn2_free( ascii );
        }
    }
}

TEST( InDnsDeathTest, MisuseAborts )
{
    EXPECT_ABORT( "name", inDnsIdnaDomainNameOk( nullptr ) );
    for( const char *name : { "", "a_b", "\u2603" } ) {
        EXPECT_ABORT( "inDnsIdnaDomainNameOk( name )", inDnsIdnaDomainNameToAscii( Str( name ).Get() ) );
        EXPECT_ABORT( "inDnsIdnaDomainNameOk( name )", inDnsIdnaDomainNameToUnicode( Str( name ).Get() ) );
    }
}

} // namespace
