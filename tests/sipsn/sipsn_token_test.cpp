// The token families that differ only in their rule: what each accepts, what becomes of it, and what calls that break a
// rule say as they stop the process.
#include "sipsn/sipsn.h"
#include "sipsn/sipsn_token_internal.h"

#include "exports.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <set>

namespace {

using testing::HasSubstr;

// ---- Strings

struct StringFamily
{
    std::string                 name;
    const char                 *valid;
    std::vector< const char * > invalid; // and the empty text

    auto Ok() const { return Exported< bool( PbString * ) >( "sipsn" + name + "Ok" ); }
    auto Normalize() const { return Exported< PbString *( PbString * ) >( "sipsn" + name + "Normalize" ); } // or null
};

const StringFamily stringFamilies[] = {
    { "Token", "Az09-.!%*_+`'~", { "a b", "a@b", "a=", "\u00e9" } },
    { "TokenNodot", "Presence", { "a.b", "." } },
    { "Method", "INVITE", { "IN VITE", "INVITE " } },
    { "Branch", "z9hG4bK.7", { "z9hG4bK@7" } },
    { "Tag", "9fxCed76sl", { "a;b" } },
    { "EmParam", "sendOnly", { "a,b" } },
    { "Epid", "0123456789ABCDEF", { "0123456789ABCDEFG", "a b" } },
    { "CallId", "F81d4fae[7]@(host)", { "a@", "@a", "a@b@c", "a b" } },
    { "SipInstance", "<urn:uuid:F81d4fae>", { "<>", "urn:uuid:f81d4fae", "<a\"b>" } },
    { "SipCleanMsgId", "20398823.2UWQFN@Example.com", { "a", "a@", "a..b@c" } },
    { "Rvalue", "Dsn.flash", { "dsn", "dsn.", "dsn.a.b" } },
    { "EventType", "Presence.winfo", { "presence.", ".winfo", "a..b" } },
    { "TimestampValue", "54.2 1.5", { ".5", "54 x", "-1" } },
    { "UserAgent", "Softphone/1.5 (beta (2)) X", { "a/", "(a", " a" } },
    { "Server", "HomeServer v2", { "@", "a (b" } },
    { "ContentCoding", "GZIP", { "g zip" } },
    { "DispositionType", "Session", { "a;b" } },
    { "Handling", "Optional", { "a=b" } },
    { "MediaType", "Application", { "*", "a/b" } },
    { "MediaSubtype", "SDP*", { "*", "sdp;a" } },
    { "OptionTag", "100Rel", { "100rel,timer" } },
    { "PrivValue", "Id", { "id;user" } },
    { "PriorityValue", "Non-Urgent", { "non urgent" } },
    { "ProtocolName", "Sip~az", { "SIP/" } },
    { "ProtocolVersion", "2.0B", { "2 .0" } },
    { "Purpose", "Icon", { "\"icon\"" } },
    { "Refresher", "UaC", { "ua", "uax", "uacs" } },
    { "Transport", "TLS-SCTP", { "tls sctp" } },
    { "SubstateValue", "Active", { "a;b" } },
    { "EventReasonValue", "NoResource", { "a b" } },
    { "HistoryInfoIndex", "1.10.0", { "1.", "1.01", ".1", "1..2", "a" } },
    { "ReasonProtocol", "Q.850", { "Q 850" } },
    { "ReasonCause", "00000000000000000000000016", { "16x", "-1", " 16" } },
    { "WarnAgent", "isi.edu:5060", { "isi.edu:", "a b", "[::1" } },
    { "Iri", "sip:bob@[2001:db8::1]:5060;lr", { "bob", "sip:a b", ":" } },
    { "DiversionPrivacy", "\"a b\"", { "a b", "\"a" } },
    { "DiversionReason", "user-busy", { "user busy" } },
    { "DiversionScreen", "yes", { "yes;" } },
    { "SessUuid",
      "f81d4fae7dec11d0a76500a0c91e6bfz",
      { "f81d4fae7dec11d0a76500a0c91e6bf", "f81d4fae7dec11d0a76500a0c91e6bfzz", "F81d4fae7dec11d0a76500a0c91e6bfz" } },
};

TEST( SipsnToken, FamiliesAcceptExactlyTheirRule )
{
    for( const StringFamily &family : stringFamilies ) {
        SCOPED_TRACE( family.name );
        ASSERT_TRUE( family.Ok() );
        EXPECT_TRUE( family.Ok()( Str( family.valid ).Get() ) );
        EXPECT_FALSE( family.Ok()( Str( "" ).Get() ) );
        for( const char *invalid : family.invalid ) EXPECT_FALSE( family.Ok()( Str( invalid ).Get() ) ) << invalid;
    }
}

TEST( SipsnToken, NormalFormsHaveOneCaseAndAreNotCopiedAgain )
{
    for( const StringFamily &family : stringFamilies ) {
        if( !family.Normalize() ) continue;
        SCOPED_TRACE( family.name );
        std::string expected = family.valid;
        for( char &ch : expected ) ch = char( family.name == "ProtocolName" ? std::toupper( ch ) : std::tolower( ch ) );
        pb::Ref normalized{ family.Normalize()( Str( family.valid ).Get() ) };
        EXPECT_EQ( Text( normalized.Get() ), expected );

        pb::Ref again{ family.Normalize()( normalized.Get() ) };
        EXPECT_EQ( again.Get(), normalized.Get() );
    }
}

// ---- Integers

struct IntegerFamily
{
    const char *name;
    bool ( *ok )( int64_t );
    int64_t lowest, highest;
    PbString *( *encode )( int64_t );
    int64_t ( *tryDecode )( const PbChar *, int64_t );
};

const IntegerFamily integerFamilies[] = {
    { "Port", sipsnPortOk, 0, INT64_MAX, sipsn___PortEncode, sipsn___PortTryDecode },
    { "DeltaSeconds", sipsnDeltaSecondsOk, 0, INT64_MAX, sipsn___DeltaSecondsEncode, sipsn___DeltaSecondsTryDecode },
    { "Ttl", sipsnTtlOk, 0, 255, sipsn___TtlEncode, sipsn___TtlTryDecode },
    { "DiversionCounter", sipsnDiversionCounterOk, 0, 99, sipsn___DiversionCounterEncode,
      sipsn___DiversionCounterTryDecode },
    { "DiversionLimit", sipsnDiversionLimitOk, 0, 99, sipsn___DiversionLimitEncode, sipsn___DiversionLimitTryDecode },
    { "MaxForwards", sipsnMaxForwardsOk, 0, 255, nullptr, nullptr },
    { "Cseq", sipsnCseqOk, 0, 2147483647, nullptr, nullptr },
    { "ResponseNum", sipsnResponseNumOk, 1, 4294967295, nullptr, nullptr },
    { "Qvalue", sipsnQvalueOk, 0, 1000, nullptr, nullptr },
    { "StatusCode", sipsnStatusCodeOk, 100, 999, nullptr, nullptr },
    { "WarnCode", sipsnWarnCodeOk, 0, 999, sipsn___WarnCodeEncode, sipsn___WarnCodeDecode },
    { "Number", sipsnNumberOk, 0, INT64_MAX, nullptr, nullptr },
    { "ErrorCode", sipsnErrorCodeOk, 0, 999, nullptr, nullptr },
    { "MaxBreadth", sipsnMaxBreadthOk, 1, INT64_MAX, nullptr, nullptr },
    { "NonceCount", sipsnNonceCountOk, 0, 4294967295, nullptr, nullptr },
};

TEST( SipsnToken, EveryFamilyIsTried )
{
    std::set< std::string > tried{ "CseqIncrement",     "GenericParamName",     "GenericParamValue", // with other tests
                                   "MessageHeaderLine", "MessageHeaderName",    "QuotableString",    "ReasonPhrase",
                                   "ReasonText",        "ResponseNumIncrement", "WarnText" };
    std::ifstream           rows{ SIPSN_SOURCE_DIR "/tests/sipsn/tokens.txt" };
    for( std::string word; rows >> word; )
        if( const size_t end = word.rfind( "Ok" ); word.starts_with( "sipsn" ) && end != word.npos )
            tried.insert( word.substr( 5, end - 5 ) );
    for( const StringFamily &family : stringFamilies ) tried.insert( family.name );
    for( const IntegerFamily &family : integerFamilies ) tried.insert( family.name );
    for( const std::string &name : ExportsBetween( "sipsn", "Ok" ) ) EXPECT_TRUE( tried.contains( name ) ) << name;
}

TEST( SipsnToken, IntegersKeepToTheirRange )
{
    for( const IntegerFamily &family : integerFamilies ) {
        SCOPED_TRACE( family.name );
        EXPECT_TRUE( family.ok( family.lowest ) );
        EXPECT_TRUE( family.ok( family.highest ) );
        EXPECT_FALSE( family.ok( family.lowest - 1 ) );
        EXPECT_FALSE( family.ok( INT64_MIN ) );
        if( family.highest < INT64_MAX ) {
            EXPECT_FALSE( family.ok( family.highest + 1 ) );
        }
    }
}

TEST( SipsnToken, IntegersAreWrittenInDecimalAndReadBack )
{
    for( const IntegerFamily &family : integerFamilies ) {
        if( !family.encode ) continue;
        SCOPED_TRACE( family.name );
        for( int64_t value : { family.lowest, int64_t( 42 ), family.highest } ) {
            const std::string text = Take( family.encode( value ) );
            EXPECT_EQ( text, std::to_string( value ) );
            const auto chs = Chars( text );
            EXPECT_EQ( family.tryDecode( chs.data(), int64_t( chs.size() ) ), value );
        }
    }
}

TEST( SipsnToken, WhatIsNoWholeIntegerInRangeDecodesToNone )
{
    for( const IntegerFamily &family : integerFamilies ) {
        if( !family.tryDecode || family.tryDecode == sipsn___WarnCodeDecode ) continue;
        SCOPED_TRACE( family.name );
        std::vector< std::string > texts{ "", "60x", "x", "-1", "+1", " 1", "1 ", "0x10", "9223372036854775808" };
        if( family.highest < INT64_MAX ) texts.push_back( std::to_string( family.highest + 1 ) );
        for( const std::string &text : texts ) {
            const auto chs = Chars( text );
            EXPECT_EQ( family.tryDecode( chs.data(), int64_t( chs.size() ) ), -1 ) << text;
        }
    }
}

TEST( SipsnToken, SequenceNumbersSayHowMuchIsLeft )
{
    EXPECT_TRUE( sipsnCseqIncrementOk( 2147483646 ) );
    EXPECT_FALSE( sipsnCseqIncrementOk( 2147483647 ) );
    EXPECT_FALSE( sipsnCseqScarce( 2147483547 ) );
    EXPECT_TRUE( sipsnCseqScarce( 2147483548 ) );
    EXPECT_TRUE( sipsnResponseNumIncrementOk( 4294967294 ) );
    EXPECT_FALSE( sipsnResponseNumIncrementOk( 4294967295 ) );
}

// ---- What stops the process

// "PrivValue" as "priv_value", the name of its file, or as "privValue", the name of its parameter.
std::string FileName( const std::string &family )
{
    std::string name;
    for( char ch : family ) {
        if( std::isupper( ch ) && !name.empty() ) name += '_';
        name += char( std::tolower( ch ) );
    }
    return name;
}
std::string ParameterName( std::string family )
{
    if( family == "HistoryInfoIndex" ) return "index";
    family[ 0 ] = char( std::tolower( family[ 0 ] ) );
    return family;
}

// What is refused where a family's normal form is that of tokens, or of anything.
const std::set< std::string > normalizedAsTokens{ "SubstateValue", "EventReasonValue" };
const std::set< std::string > normalizedAsTheyAre{ "DiversionPrivacy", "DiversionReason", "DiversionScreen" };

auto Failure( const std::string &family, const std::string &condition, const std::string &context = "" )
{
    return testing::AllOf( HasSubstr( "source/sipsn/sipsn_" + FileName( family ) + ":" ),
                           HasSubstr( "condition \"" + condition + "\" failed" + context + "\n" ) );
}

TEST( SipsnTokenDeathTest, NullAndWhatOkRefusesAreNamed )
{
    for( const StringFamily &family : stringFamilies ) {
        SCOPED_TRACE( family.name );
        const std::string parameter = ParameterName( family.name );
        EXPECT_DEATH( family.Ok()( nullptr ), Failure( family.name, parameter ) );
        if( !family.Normalize() ) continue;
        EXPECT_DEATH( family.Normalize()( nullptr ), Failure( family.name, parameter ) );
        if( normalizedAsTheyAre.contains( family.name ) ) continue;
        const auto asToken = normalizedAsTokens.contains( family.name );
        EXPECT_DEATH( family.Normalize()( Str( family.invalid[ 0 ] ).Get() ),
                      asToken ? Failure( "Token", "sipsnTokenOk( token )" )
                              : Failure( family.name, "sipsn" + family.name + "Ok( " + parameter + " )" ) );
    }
}

TEST( SipsnTokenDeathTest, TextsWithTestsOfTheirOwn )
{
    EXPECT_DEATH( sipsnHostOk( nullptr ), Failure( "Host", "host" ) );
    EXPECT_DEATH( sipsnDisplayNameOk( nullptr ), Failure( "DisplayName", "displayName" ) );
    EXPECT_DEATH( sipsnWarnTextOk( nullptr ), Failure( "WarnText", "warnText" ) );
    EXPECT_DEATH( sipsnOrganizationNormalize( nullptr ), Failure( "Organization", "organization" ) );
    EXPECT_DEATH( sipsnOrganizationNormalize( Str( "a\nb" ).Get() ),
                  Failure( "Organization", "sipsnOrganizationOk( organization )", " (organization invalid)" ) );
    EXPECT_DEATH( sipsnSubjectNormalize( nullptr ), Failure( "Subject", "subject" ) );
    EXPECT_DEATH( sipsnSubjectNormalize( Str( "a\nb" ).Get() ),
                  Failure( "Subject", "sipsnSubjectOk( subject )", " (subject invalid)" ) );
    EXPECT_DEATH( sipsn___ReasonPhraseEncode( nullptr ), Failure( "ReasonPhrase", "pbs" ) );
    EXPECT_DEATH( sipsn___QuotableStringEncode( Str( "a\rb" ).Get() ),
                  Failure( "QuotableString", "sipsnQuotableStringOk( quotableString )" ) );
    EXPECT_DEATH( sipsn___DisplayNameEncode( Str( "a\nb" ).Get() ),
                  Failure( "DisplayName", "sipsnDisplayNameOk( displayName )" ) );
    EXPECT_DEATH( sipsn___HostEncode( Str( "a b" ).Get() ), Failure( "Host", "sipsnHostOk( host )" ) );
    EXPECT_DEATH( sipsn___HostTryDecode( nullptr, 1 ), Failure( "Host", "chs || length == 0" ) );
}

TEST( SipsnTokenDeathTest, NumbersOutOfRange )
{
    for( const IntegerFamily &family : integerFamilies ) {
        if( !family.encode ) continue;
        const std::string condition =
            std::string( "sipsn" ) + family.name + "Ok( " + ParameterName( family.name ) + " )";
        EXPECT_DEATH( family.encode( family.lowest - 1 ), Failure( family.name, condition ) );
        EXPECT_DEATH( family.tryDecode( nullptr, -1 ), Failure( family.name, "length >= 0" ) );
        if( family.highest < INT64_MAX ) {
            EXPECT_DEATH( family.encode( family.highest + 1 ), Failure( family.name, condition ) );
        }
    }
    EXPECT_DEATH( sipsn___QvalueEncode( 1001 ), Failure( "Qvalue", "sipsnQvalueOk( qvalue )" ) );
    EXPECT_DEATH( sipsnCseqScarce( -1 ), Failure( "Cseq", "sipsnCseqOk( cseq )" ) );
    EXPECT_DEATH( sipsnCseqIncrementOk( 2147483648 ), Failure( "Cseq", "sipsnCseqOk( cseq )" ) );
    EXPECT_DEATH( sipsnResponseNumIncrementOk( 0 ), Failure( "ResponseNum", "sipsnResponseNumOk( responseNum )" ) );
    EXPECT_DEATH( sipsnStatusCodeSuccess( 1000 ), Failure( "StatusCode", "sipsnStatusCodeOk( sc )" ) );
    EXPECT_DEATH( sipsnStatusCodeReasonPhrase( 99 ), Failure( "StatusCode", "sipsnStatusCodeOk( sc )" ) );
    EXPECT_DEATH( sipsnWarnCodeToString( 1000 ), Failure( "WarnCode", "sipsnWarnCodeOk( warnCode )" ) );
    EXPECT_DEATH( sipsn___WarnCodeDecode( Chars( "30x" ).data(), 3 ),
                  Failure( "WarnCode", "pbFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && "
                                       "charsRead == length" ) );
}

} // namespace
