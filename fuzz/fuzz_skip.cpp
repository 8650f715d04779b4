// No production answers less than 0 or more than the length, looks past the end, or matches less of a text that it has
// matched when that text stands alone. The validators say what the productions say. The first byte of the input picks
// the production; the rest is the text.
#include "fuzz.h"

#include "sipsn/sipsn_skip_internal.h"

#include <iterator>

namespace {

template< auto production > int64_t WithColon( const PbChar *chs, int64_t length )
{
    return production( chs, length, ':' );
}
constexpr auto SkipChar       = WithColon< sipsn___SkipChar >;
constexpr auto SkipCharSws    = WithColon< sipsn___SkipCharSws >;
constexpr auto SkipSwsChar    = WithColon< sipsn___SkipSwsChar >;
constexpr auto SkipSwsCharSws = WithColon< sipsn___SkipSwsCharSws >;

// Patterns are beginnings of the text, so that they match.
template< auto production > int64_t WithPattern( const PbChar *chs, int64_t length )
{
    REQUIRE( production( chs, length, chs, length / 2 ) == length / 2 );
    REQUIRE( length == 0 || production( chs, length - 1, chs, length ) == 0 );
    return production( chs, length, chs, length );
}
constexpr auto SkipChars              = WithPattern< sipsn___SkipChars >;
constexpr auto SkipCharsAsciiCaseFold = WithPattern< sipsn___SkipCharsAsciiCaseFold >;

template< auto production, int64_t lowest, int64_t highest > int64_t WithNumber( const PbChar *chs, int64_t length )
{
    int64_t       number = -1;
    const int64_t count  = production( chs, length, &number );
    REQUIRE( production( chs, length, nullptr ) == count );
    REQUIRE( count == 0 ? number == -1 : lowest <= number && number <= highest );
    return count;
}
constexpr auto SkipMonth = WithNumber< sipsn___SkipMonth, 1, 12 >;
constexpr auto SkipWkday = WithNumber< sipsn___SkipWkday, 0, 6 >;

struct Production
{
    int64_t ( *skip )( const PbChar *chs, int64_t length );
    bool ( *ok )( PbString *string ) = nullptr; // where it is whether the production covers the text
};

constexpr Production productions[] = {
    { sipsn___SkipSws },
    { sipsn___SkipLws },
    { SkipChar },
    { SkipCharSws },
    { SkipSwsChar },
    { SkipSwsCharSws },
    { sipsn___SkipColon },
    { sipsn___SkipHcolon },
    { sipsn___SkipComma },
    { sipsn___SkipEqual },
    { sipsn___SkipSemi },
    { sipsn___SkipSlash },
    { sipsn___SkipStar },
    { sipsn___SkipLparen },
    { sipsn___SkipRparen },
    { sipsn___SkipLaquot },
    { sipsn___SkipRaquot },
    { sipsn___SkipLdquot },
    { sipsn___SkipRdquot },
    { SkipChars },
    { SkipCharsAsciiCaseFold },
    { sipsn___SkipToken, sipsnTokenOk },
    { sipsn___SkipTokenNodot, sipsnTokenNodotOk },
    { sipsn___SkipAtom },
    { sipsn___SkipDotAtom },
    { sipsn___SkipWord },
    { sipsn___SkipDigits },
    { sipsn___SkipQuotedString },
    { sipsn___SkipComment },
    { sipsn___SkipBranch, sipsnBranchOk },
    { sipsn___SkipContentCoding, sipsnContentCodingOk },
    { sipsn___SkipDispositionType, sipsnDispositionTypeOk },
    { sipsn___SkipEmParam, sipsnEmParamOk },
    { sipsn___SkipEventReasonValue, sipsnEventReasonValueOk },
    { sipsn___SkipHandling, sipsnHandlingOk },
    { sipsn___SkipMessageHeaderName, sipsnMessageHeaderNameOk },
    { sipsn___SkipMethod, sipsnMethodOk },
    { sipsn___SkipOptionTag, sipsnOptionTagOk },
    { sipsn___SkipPriorityValue, sipsnPriorityValueOk },
    { sipsn___SkipPrivValue, sipsnPrivValueOk },
    { sipsn___SkipProtocolName, sipsnProtocolNameOk },
    { sipsn___SkipProtocolVersion, sipsnProtocolVersionOk },
    { sipsn___SkipPseudonym },
    { sipsn___SkipPurpose, sipsnPurposeOk },
    { sipsn___SkipReasonProtocol, sipsnReasonProtocolOk },
    { sipsn___SkipSubstateValue, sipsnSubstateValueOk },
    { sipsn___SkipTag, sipsnTagOk },
    { sipsn___SkipTransport, sipsnTransportOk },
    { sipsn___SkipDeltaSeconds },
    { sipsn___SkipReasonCause, sipsnReasonCauseOk },
    { sipsn___SkipTtl },
    { sipsn___SkipReasonText },
    { sipsn___SkipWarnText },
    { sipsn___SkipUser },
    { sipsn___SkipPassword },
    { sipsn___SkipUric },
    { sipsn___SkipPvalue },
    { sipsn___SkipEpid, sipsnEpidOk },
    { sipsn___SkipSessUuid, sipsnSessUuidOk },
    { sipsn___SkipIpV4Address },
    { sipsn___SkipIpV6Address },
    { sipsn___SkipIpV6Reference },
    { sipsn___SkipPort },
    { sipsn___SkipUri },
    { sipsn___SkipDomainLabel },
    { sipsn___SkipHostname },
    { sipsn___SkipHost },
    { sipsn___SkipHostPort },
    { sipsn___SkipDisplayName },
    { sipsn___SkipNameAddr },
    { sipsn___SkipAddrSpec },
    { sipsn___SkipGenericParam },
    { sipsn___SkipGenericParams },
    { sipsn___SkipQvalue },
    { sipsn___SkipVersion },
    { sipsn___SkipEventType, sipsnEventTypeOk },
    { sipsn___SkipRvalue, sipsnRvalueOk },
    { sipsn___SkipCallId, sipsnCallIdOk },
    { sipsn___SkipSipCleanMsgId, sipsnSipCleanMsgIdOk },
    { sipsn___SkipSipInstance, sipsnSipInstanceOk },
    { sipsn___SkipMediaType, sipsnMediaTypeOk },
    { sipsn___SkipMediaSubtype, sipsnMediaSubtypeOk },
    { sipsn___SkipAccept },
    { sipsn___SkipAcceptEncoding },
    { sipsn___SkipContact },
    { sipsn___SkipRoute },
    { sipsn___SkipIdentityValue },
    { sipsn___SkipAlertInfo },
    { sipsn___SkipCallInfo },
    { sipsn___SkipErrorInfo },
    { sipsn___SkipDiversion },
    { sipsn___SkipDiversionCounter },
    { sipsn___SkipDiversionLimit },
    { sipsn___SkipDiversionPrivacy, sipsnDiversionPrivacyOk },
    { sipsn___SkipDiversionReason, sipsnDiversionReasonOk },
    { sipsn___SkipDiversionScreen, sipsnDiversionScreenOk },
    { sipsn___SkipHistoryInfo },
    { sipsn___SkipHistoryInfoIndex, sipsnHistoryInfoIndexOk },
    { sipsn___SkipReason },
    { sipsn___SkipUuiValue },
    { sipsn___SkipRefresher, sipsnRefresherOk },
    { sipsn___SkipTimestampValue, sipsnTimestampValueOk },
    { sipsn___SkipSubject },
    { sipsn___SkipOrganization },
    { sipsn___SkipServer, sipsnServerOk },
    { sipsn___SkipUserAgent, sipsnUserAgentOk },
    { sipsn___SkipServerVal },
    { sipsn___SkipWarningValue },
    { sipsn___SkipWarnCode },
    { sipsn___SkipWarnAgent, sipsnWarnAgentOk },
    { sipsn___SkipVia },
    { sipsn___SkipViaParams },
    { sipsn___SkipViaReceived },
    { SkipMonth },
    { SkipWkday },
};
static_assert( std::size( productions ) == 115 );

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    if( size == 0 ) return 0;
    fuzz::Start();
    const Production &production = productions[ data[ 0 ] % std::size( productions ) ];
    pb::Ref           string     = fuzz::String( data + 1, size - 1 );
    const fuzz::Text  text{ string.Get() };

    const int64_t count = production.skip( text.Chs(), text.Length() );
    REQUIRE( 0 <= count && count <= text.Length() );
    if( production.ok ) REQUIRE( production.ok( string.Get() ) == ( count > 0 && count == text.Length() ) );

    pb::Ref          matched{ pbStringLeading( string.Get(), count ) };
    const fuzz::Text alone{ matched.Get() };
    REQUIRE( production.skip( alone.Chs(), count ) == count );
    return 0;
}
