// The token families that differ only in their rule, in two tables: one of strings and one of integers; and what calls
// that break a rule say as they stop the process.
#include "sipsn/sipsn.h"
#include "sipsn/sipsn_token_internal.h"

#include "text.h"

#include <gmock/gmock.h>

#include <vector>

namespace {

using testing::HasSubstr;

// ---- Strings

using Ok        = bool( PbString        *);
using Normalize = PbString *( PbString * );

struct StringFamily
{
    const char                 *name;
    Ok                         *ok;
    Normalize                  *normalize; // null: the text is taken as it is
    const char                 *valid;
    const char                 *normalized;
    std::vector< const char * > invalid;
};

const StringFamily stringFamilies[] = {
    { "Token",
      sipsnTokenOk,
      sipsnTokenNormalize,
      "Az09-.!%*_+`'~",
      "az09-.!%*_+`'~",
      { "a b", "a@b", "a=", "\u00e9" } },
    { "TokenNodot", sipsnTokenNodotOk, sipsnTokenNodotNormalize, "Presence", "presence", { "a.b", "." } },
    { "Method", sipsnMethodOk, nullptr, "INVITE", "", { "IN VITE", "INVITE " } },
    { "Branch", sipsnBranchOk, nullptr, "z9hG4bK.7", "", { "z9hG4bK@7" } },
    { "Tag", sipsnTagOk, nullptr, "9fxCed76sl", "", { "a;b" } },
    { "EmParam", sipsnEmParamOk, nullptr, "sendOnly", "", { "a,b" } },
    { "Epid", sipsnEpidOk, nullptr, "0123456789ABCDEF", "", { "0123456789ABCDEFG", "a b" } },
    { "CallId", sipsnCallIdOk, nullptr, "F81d4fae[7]@(host)", "", { "a@", "@a", "a@b@c", "a b" } },
    { "SipInstance", sipsnSipInstanceOk, nullptr, "<urn:uuid:F81d4fae>", "", { "<>", "urn:uuid:f81d4fae", "<a\"b>" } },
    { "SipCleanMsgId", sipsnSipCleanMsgIdOk, nullptr, "20398823.2UWQFN@Example.com", "", { "a", "a@", "a..b@c" } },
    { "Rvalue", sipsnRvalueOk, nullptr, "Dsn.flash", "", { "dsn", "dsn.", "dsn.a.b" } },
    { "EventType", sipsnEventTypeOk, nullptr, "Presence.winfo", "", { "presence.", ".winfo", "a..b" } },
    { "TimestampValue", sipsnTimestampValueOk, nullptr, "54.2 1.5", "", { ".5", "54 x", "-1" } },
    { "UserAgent", sipsnUserAgentOk, nullptr, "Softphone/1.5 (beta (2)) X", "", { "a/", "(a", " a" } },
    { "Server", sipsnServerOk, nullptr, "HomeServer v2", "", { "@", "a (b" } },
    { "ContentCoding", sipsnContentCodingOk, sipsnContentCodingNormalize, "GZIP", "gzip", { "g zip" } },
    { "DispositionType", sipsnDispositionTypeOk, sipsnDispositionTypeNormalize, "Session", "session", { "a;b" } },
    { "Handling", sipsnHandlingOk, sipsnHandlingNormalize, "Optional", "optional", { "a=b" } },
    { "MediaType", sipsnMediaTypeOk, sipsnMediaTypeNormalize, "Application", "application", { "*", "a/b" } },
    { "MediaSubtype", sipsnMediaSubtypeOk, sipsnMediaSubtypeNormalize, "SDP*", "sdp*", { "*", "sdp;a" } },
    { "OptionTag", sipsnOptionTagOk, sipsnOptionTagNormalize, "100Rel", "100rel", { "100rel,timer" } },
    { "PrivValue", sipsnPrivValueOk, sipsnPrivValueNormalize, "Id", "id", { "id;user" } },
    { "PriorityValue",
      sipsnPriorityValueOk,
      sipsnPriorityValueNormalize,
      "Non-Urgent",
      "non-urgent",
      { "non urgent" } },
    { "ProtocolName", sipsnProtocolNameOk, sipsnProtocolNameNormalize, "Sip~az", "SIP~AZ", { "SIP/" } },
    { "ProtocolVersion", sipsnProtocolVersionOk, sipsnProtocolVersionNormalize, "2.0B", "2.0b", { "2 .0" } },
    { "Purpose", sipsnPurposeOk, sipsnPurposeNormalize, "Icon", "icon", { "\"icon\"" } },
    { "Refresher", sipsnRefresherOk, sipsnRefresherNormalize, "UaC", "uac", { "ua", "uax", "uacs" } },
    { "Transport", sipsnTransportOk, sipsnTransportNormalize, "TLS-SCTP", "tls-sctp", { "tls sctp" } },
    { "SubstateValue", sipsnSubstateValueOk, sipsnSubstateValueNormalize, "Active", "active", { "a;b" } },
    { "EventReasonValue",
      sipsnEventReasonValueOk,
      sipsnEventReasonValueNormalize,
      "NoResource",
      "noresource",
      { "a b" } },
    { "HistoryInfoIndex", sipsnHistoryInfoIndexOk, nullptr, "1.10.0", "", { "1.", "1.01", ".1", "1..2", "a" } },
    { "ReasonProtocol", sipsnReasonProtocolOk, nullptr, "Q.850", "", { "Q 850" } },
    { "ReasonCause", sipsnReasonCauseOk, nullptr, "00000000000000000000000016", "", { "16x", "-1", " 16" } },
    { "WarnAgent", sipsnWarnAgentOk, nullptr, "isi.edu:5060", "", { "isi.edu:", "a b", "[::1" } },
    { "Iri", sipsnIriOk, nullptr, "sip:bob@[2001:db8::1]:5060;lr", "", { "bob", "sip:a b", ":" } },
    { "DiversionPrivacy", sipsnDiversionPrivacyOk, nullptr, "\"a b\"", "", { "a b", "\"a" } },
    { "DiversionReason", sipsnDiversionReasonOk, nullptr, "user-busy", "", { "user busy" } },
    { "DiversionScreen", sipsnDiversionScreenOk, nullptr, "yes", "", { "yes;" } },
    { "SessUuid",
      sipsnSessUuidOk,
      nullptr,
      "f81d4fae7dec11d0a76500a0c91e6bfz",
      "",
      { "f81d4fae7dec11d0a76500a0c91e6bf", "f81d4fae7dec11d0a76500a0c91e6bfzz", "F81d4fae7dec11d0a76500a0c91e6bfz" } },
};

TEST( SipsnToken, FamiliesAcceptExactlyTheirRule )
{
    for( const StringFamily &family : stringFamilies ) {
        SCOPED_TRACE( family.name );
        EXPECT_TRUE( family.ok( Str( family.valid ).Get() ) );
        EXPECT_FALSE( family.ok( Str( "" ).Get() ) );
        for( const char *invalid : family.invalid ) EXPECT_FALSE( family.ok( Str( invalid ).Get() ) ) << invalid;
    }
}

TEST( SipsnToken, NormalFormsHaveOneCaseAndAreNotCopiedAgain )
{
    for( const StringFamily &family : stringFamilies ) {
        if( !family.normalize ) continue;
        SCOPED_TRACE( family.name );
        pb::Ref normalized{ family.normalize( Str( family.valid ).Get() ) };
        EXPECT_EQ( Text( normalized.Get() ), family.normalized );

        pb::Ref again{ family.normalize( normalized.Get() ) };
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
};

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

struct Abort
{
    const char *file;
    const char *condition;
    const char *context; // null: none
    void ( *call )();
};

const Abort aborts[] = {
    { "token", "token", nullptr, [] { sipsnTokenOk( nullptr ); } },
    { "token", "token", nullptr, [] { sipsnTokenNormalize( nullptr ); } },
    { "token", "sipsnTokenOk( token )", nullptr, [] { sipsnTokenNormalize( Str( "a b" ).Get() ); } },
    { "token_nodot", "sipsnTokenNodotOk( tokenNodot )", nullptr,
      [] { sipsnTokenNodotNormalize( Str( "a.b" ).Get() ); } },
    { "protocol_name", "sipsnProtocolNameOk( protocolName )", nullptr,
      [] { sipsnProtocolNameNormalize( Str( "" ).Get() ); } },
    { "protocol_version", "sipsnProtocolVersionOk( protocolVersion )", nullptr,
      [] { sipsnProtocolVersionNormalize( Str( "" ).Get() ); } },
    { "content_coding", "sipsnContentCodingOk( contentCoding )", nullptr,
      [] { sipsnContentCodingNormalize( Str( "" ).Get() ); } },
    { "disposition_type", "sipsnDispositionTypeOk( dispositionType )", nullptr,
      [] { sipsnDispositionTypeNormalize( Str( "" ).Get() ); } },
    { "handling", "sipsnHandlingOk( handling )", nullptr, [] { sipsnHandlingNormalize( Str( "" ).Get() ); } },
    { "media_type", "sipsnMediaTypeOk( mediaType )", nullptr, [] { sipsnMediaTypeNormalize( Str( "*" ).Get() ); } },
    { "media_subtype", "sipsnMediaSubtypeOk( mediaSubtype )", nullptr,
      [] { sipsnMediaSubtypeNormalize( Str( "*" ).Get() ); } },
    { "option_tag", "sipsnOptionTagOk( optionTag )", nullptr, [] { sipsnOptionTagNormalize( Str( "" ).Get() ); } },
    { "priv_value", "sipsnPrivValueOk( privValue )", nullptr, [] { sipsnPrivValueNormalize( Str( "" ).Get() ); } },
    { "priority_value", "sipsnPriorityValueOk( priorityValue )", nullptr,
      [] { sipsnPriorityValueNormalize( Str( "" ).Get() ); } },
    { "purpose", "sipsnPurposeOk( purpose )", nullptr, [] { sipsnPurposeNormalize( Str( "" ).Get() ); } },
    { "refresher", "sipsnRefresherOk( refresher )", nullptr, [] { sipsnRefresherNormalize( Str( "uab" ).Get() ); } },
    { "transport", "sipsnTransportOk( transport )", nullptr, [] { sipsnTransportNormalize( Str( "" ).Get() ); } },
    { "substate_value", "substateValue", nullptr, [] { sipsnSubstateValueNormalize( nullptr ); } },
    { "token", "sipsnTokenOk( token )", nullptr, [] { sipsnSubstateValueNormalize( Str( "a b" ).Get() ); } },
    { "event_reason_value", "eventReasonValue", nullptr, [] { sipsnEventReasonValueNormalize( nullptr ); } },
    { "diversion_privacy", "diversionPrivacy", nullptr, [] { sipsnDiversionPrivacyNormalize( nullptr ); } },
    { "diversion_reason", "diversionReason", nullptr, [] { sipsnDiversionReasonNormalize( nullptr ); } },
    { "diversion_screen", "diversionScreen", nullptr, [] { sipsnDiversionScreenNormalize( nullptr ); } },
    { "method", "method", nullptr, [] { sipsnMethodOk( nullptr ); } },
    { "call_id", "callId", nullptr, [] { sipsnCallIdOk( nullptr ); } },
    { "iri", "iri", nullptr, [] { sipsnIriOk( nullptr ); } },
    { "host", "host", nullptr, [] { sipsnHostOk( nullptr ); } },
    { "display_name", "displayName", nullptr, [] { sipsnDisplayNameOk( nullptr ); } },
    { "warn_agent", "warnAgent", nullptr, [] { sipsnWarnAgentOk( nullptr ); } },
    { "warn_text", "warnText", nullptr, [] { sipsnWarnTextOk( nullptr ); } },
    { "history_info_index", "index", nullptr, [] { sipsnHistoryInfoIndexOk( nullptr ); } },
    { "reason_cause", "reasonCause", nullptr, [] { sipsnReasonCauseOk( nullptr ); } },
    { "organization", "organization", nullptr, [] { sipsnOrganizationNormalize( nullptr ); } },
    { "organization", "sipsnOrganizationOk( organization )", "organization invalid",
      [] { sipsnOrganizationNormalize( Str( "a\nb" ).Get() ); } },
    { "subject", "subject", nullptr, [] { sipsnSubjectNormalize( nullptr ); } },
    { "subject", "sipsnSubjectOk( subject )", "subject invalid", [] { sipsnSubjectNormalize( Str( "a\nb" ).Get() ); } },
    { "reason_phrase", "pbs", nullptr, [] { sipsn___ReasonPhraseEncode( nullptr ); } },
    { "quotable_string", "sipsnQuotableStringOk( quotableString )", nullptr,
      [] { sipsn___QuotableStringEncode( Str( "a\rb" ).Get() ); } },
    { "display_name", "sipsnDisplayNameOk( displayName )", nullptr,
      [] { sipsn___DisplayNameEncode( Str( "a\nb" ).Get() ); } },
    { "host", "sipsnHostOk( host )", nullptr, [] { sipsn___HostEncode( Str( "a b" ).Get() ); } },
    { "qvalue", "sipsnQvalueOk( qvalue )", nullptr, [] { sipsn___QvalueEncode( 1001 ); } },
    { "port", "sipsnPortOk( port )", nullptr, [] { sipsn___PortEncode( -1 ); } },
    { "delta_seconds", "sipsnDeltaSecondsOk( deltaSeconds )", nullptr, [] { sipsn___DeltaSecondsEncode( -1 ); } },
    { "ttl", "sipsnTtlOk( ttl )", nullptr, [] { sipsn___TtlEncode( 256 ); } },
    { "diversion_counter", "sipsnDiversionCounterOk( diversionCounter )", nullptr,
      [] { sipsn___DiversionCounterEncode( 100 ); } },
    { "diversion_limit", "sipsnDiversionLimitOk( diversionLimit )", nullptr,
      [] { sipsn___DiversionLimitEncode( 100 ); } },
    { "cseq", "sipsnCseqOk( cseq )", nullptr, [] { sipsnCseqScarce( -1 ); } },
    { "cseq", "sipsnCseqOk( cseq )", nullptr, [] { sipsnCseqIncrementOk( 2147483648 ); } },
    { "response_num", "sipsnResponseNumOk( responseNum )", nullptr, [] { sipsnResponseNumIncrementOk( 0 ); } },
    { "status_code", "sipsnStatusCodeOk( sc )", nullptr, [] { sipsnStatusCodeSuccess( 1000 ); } },
    { "status_code", "sipsnStatusCodeOk( sc )", nullptr, [] { sipsnStatusCodeReasonPhrase( 99 ); } },
    { "warn_code", "sipsnWarnCodeOk( warnCode )", nullptr, [] { sipsnWarnCodeToString( 1000 ); } },
    { "warn_code", "sipsnWarnCodeOk( warnCode )", nullptr, [] { sipsn___WarnCodeEncode( -1 ); } },
    { "warn_code", "pbFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length", nullptr,
      [] { sipsn___WarnCodeDecode( Chars( "30x" ).data(), 3 ); } },
    { "qvalue", "length >= 0", nullptr, [] { sipsn___QvalueTryDecode( Chars( "1" ).data(), -1 ); } },
    { "host", "chs || length == 0", nullptr, [] { sipsn___HostTryDecode( nullptr, 1 ); } },
};

TEST( SipsnTokenDeathTest, MisuseSaysWhichConditionFailed )
{
    for( const Abort &abort : aborts ) {
        const std::string context = abort.context ? std::string( " (" ) + abort.context + ")" : "";
        const std::string file    = std::string( "source/sipsn/sipsn_" ) + abort.file + ":";
        const std::string failed  = std::string( "condition \"" ) + abort.condition + "\" failed" + context + "\n";
        SCOPED_TRACE( failed );
        EXPECT_DEATH( abort.call(), testing::AllOf( HasSubstr( file ), HasSubstr( failed ) ) );
    }
}

} // namespace
