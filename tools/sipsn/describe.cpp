// The members of values and of single-valued header types by name, for JSON and trees.
#include "describe.h"

#include "text.h"

#include <algorithm>

namespace tool {

Members &Members::Text( const char *name, PbString *text )
{
    const Owned< PbString > owned{ text };
    if( owned ) object_[ name ] = Utf8( owned );
    return *this;
}

Members &Members::Number( const char *name, int64_t number )
{
    if( number >= 0 ) object_[ name ] = number;
    return *this;
}

Members &Members::Thousandths( const char *name, int64_t number )
{
    if( number >= 0 ) object_[ name ] = double( number ) / 1000;
    return *this;
}

Members &Members::Flag( const char *name, bool flag )
{
    if( flag ) object_[ name ] = true;
    return *this;
}

Members &Members::Time( const char *name, PbTime *time )
{
    const Owned< PbTime > owned{ time };
    std::string           text = Utf8( Owned{ pbTimeToString( owned.Get() ) } );
    std::replace( text.begin(), text.end(), ' ', 'T' );
    object_[ name ] = text + 'Z';
    return *this;
}

Members &Members::Params( SipsnGenericParams *params )
{
    const Owned< SipsnGenericParams > owned{ params };
    if( sipsnGenericParamsLength( owned.Get() ) > 0 ) object_[ "params" ] = Describe( owned.Get() );
    return *this;
}

namespace {

template< class Result, class T > using Getter = Result *(*)( T *object );

// A name-addr without members of its own.
template< class T >
Json DescribeAddress( T *address, Getter< PbString, T > iri, Getter< PbString, T > displayName,
                      Getter< SipsnGenericParams, T > params )
{
    return Members()
        .Text( "iri", iri( address ) )
        .Text( "displayName", displayName( address ) )
        .Params( params( address ) )
        .Object();
}

} // namespace

// ---- Values ----------------------------------------------------------------------------------------

Json Describe( SipsnAccept *accept )
{
    return Members()
        .Text( "mediaType", sipsnAcceptMediaType( accept ) )
        .Text( "mediaSubtype", sipsnAcceptMediaSubtype( accept ) )
        .Thousandths( "q", sipsnAcceptQvalue( accept ) )
        .Params( sipsnAcceptGenericParams( accept ) )
        .Object();
}

Json Describe( SipsnAcceptEncoding *acceptEncoding )
{
    return Members()
        .Text( "contentCoding", sipsnAcceptEncodingContentCoding( acceptEncoding ) )
        .Thousandths( "q", sipsnAcceptEncodingQvalue( acceptEncoding ) )
        .Params( sipsnAcceptEncodingGenericParams( acceptEncoding ) )
        .Object();
}

Json Describe( SipsnAlertInfo *alertInfo )
{
    return Members()
        .Text( "iri", sipsnAlertInfoIri( alertInfo ) )
        .Params( sipsnAlertInfoGenericParams( alertInfo ) )
        .Object();
}

Json Describe( SipsnCallInfo *callInfo )
{
    return Members()
        .Text( "iri", sipsnCallInfoIri( callInfo ) )
        .Text( "purpose", sipsnCallInfoPurpose( callInfo ) )
        .Params( sipsnCallInfoGenericParams( callInfo ) )
        .Object();
}

Json Describe( SipsnContact *contact )
{
    return Members()
        .Text( "iri", sipsnContactIri( contact ) )
        .Text( "displayName", sipsnContactDisplayName( contact ) )
        .Thousandths( "q", sipsnContactQvalue( contact ) )
        .Number( "expires", sipsnContactExpires( contact ) )
        .Text( "rc", sipsnContactRc( contact ) )
        .Text( "mp", sipsnContactMp( contact ) )
        .Text( "np", sipsnContactNp( contact ) )
        .Text( "sipInstance", sipsnContactSipInstance( contact ) )
        .Flag( "sipSrc", sipsnContactSipSrc( contact ) )
        .Flag( "sipSrs", sipsnContactSipSrs( contact ) )
        .Params( sipsnContactGenericParams( contact ) )
        .Object();
}

Json Describe( SipsnDiversion *diversion )
{
    return Members()
        .Text( "iri", sipsnDiversionIri( diversion ) )
        .Text( "displayName", sipsnDiversionDisplayName( diversion ) )
        .Text( "reason", sipsnDiversionReason( diversion ) )
        .Number( "counter", sipsnDiversionCounter( diversion ) )
        .Number( "limit", sipsnDiversionLimit( diversion ) )
        .Text( "privacy", sipsnDiversionPrivacy( diversion ) )
        .Text( "screen", sipsnDiversionScreen( diversion ) )
        .Params( sipsnDiversionGenericParams( diversion ) )
        .Object();
}

Json Describe( SipsnErrorInfo *errorInfo )
{
    return Members()
        .Text( "iri", sipsnErrorInfoIri( errorInfo ) )
        .Params( sipsnErrorInfoGenericParams( errorInfo ) )
        .Object();
}

Json Describe( SipsnGenericParam *param )
{
    return Members()
        .Text( "name", sipsnGenericParamName( param ) )
        .Text( "value", sipsnGenericParamValueNonNormalized( param ) )
        .Object();
}

Json Describe( SipsnGenericParams *params )
{
    Json object = Json::object();
    for( int64_t at = 0; at < sipsnGenericParamsLength( params ); ++at ) {
        const Owned< SipsnGenericParam > param{ sipsnGenericParamsParamAt( params, at ) };
        const Owned< PbString >          value{ sipsnGenericParamValueNonNormalized( param.Get() ) };
        object[ Utf8( Owned{ sipsnGenericParamName( param.Get() ) } ) ] = value ? Json( Utf8( value ) ) : Json();
    }
    return object;
}

Json Describe( SipsnHistoryInfo *historyInfo )
{
    return Members()
        .Text( "iri", sipsnHistoryInfoIri( historyInfo ) )
        .Text( "displayName", sipsnHistoryInfoDisplayName( historyInfo ) )
        .Text( "index", sipsnHistoryInfoIndex( historyInfo ) )
        .Text( "rc", sipsnHistoryInfoRc( historyInfo ) )
        .Text( "mp", sipsnHistoryInfoMp( historyInfo ) )
        .Text( "np", sipsnHistoryInfoNp( historyInfo ) )
        .Params( sipsnHistoryInfoGenericParams( historyInfo ) )
        .Object();
}

Json Describe( SipsnIdentityValue *identity )
{
    return Members()
        .Text( "iri", sipsnIdentityValueIri( identity ) )
        .Text( "displayName", sipsnIdentityValueDisplayName( identity ) )
        .Object();
}

Json Describe( SipsnReason *reason )
{
    return Members()
        .Text( "protocol", sipsnReasonProtocol( reason ) )
        .Text( "cause", sipsnReasonCause( reason ) )
        .Text( "text", sipsnReasonText( reason ) )
        .Params( sipsnReasonGenericParams( reason ) )
        .Object();
}

Json Describe( SipsnRoute *route )
{
    return DescribeAddress( route, sipsnRouteIri, sipsnRouteDisplayName, sipsnRouteGenericParams );
}

Json Describe( SipsnUuiValue *uui )
{
    return Members()
        .Text( "uuiData", sipsnUuiValueUuiData( uui ) )
        .Text( "encoding", sipsnUuiValueEncoding( uui ) )
        .Text( "purpose", sipsnUuiValuePurpose( uui ) )
        .Text( "content", sipsnUuiValueContent( uui ) )
        .Params( sipsnUuiValueGenericParams( uui ) )
        .Object();
}

Json Describe( SipsnVia *via )
{
    const Owned< SipsnVersion > version{ sipsnViaVersion( via ) };
    const Owned< InAddress >    received{ sipsnViaReceived( via ) };
    return Members()
        .Text( "version", sipsnVersionToString( version.Get() ) )
        .Text( "transport", sipsnViaTransport( via ) )
        .Text( "host", sipsnViaHost( via ) )
        .Number( "port", sipsnViaPort( via ) )
        .Number( "ttl", sipsnViaTtl( via ) )
        .Text( "maddr", sipsnViaMaddr( via ) )
        .Text( "received", received ? inAddressToStringShrink( received.Get() ) : nullptr )
        .Flag( "rportEmpty", sipsnViaHasRportEmpty( via ) )
        .Number( "rport", sipsnViaRportNumeric( via ) )
        .Text( "branch", sipsnViaBranch( via ) )
        .Params( sipsnViaGenericParams( via ) )
        .Object();
}

Json Describe( SipsnWarningValue *warning )
{
    return Members()
        .Number( "warnCode", sipsnWarningValueWarnCode( warning ) )
        .Text( "warnAgent", sipsnWarningValueWarnAgent( warning ) )
        .Text( "warnText", sipsnWarningValueWarnText( warning ) )
        .Object();
}

// ---- Header types -----------------------------------------------------------------------------------

Json Describe( SipsnHeaderCallId *hdr ) { return Members().Text( "callId", sipsnHeaderCallIdCallId( hdr ) ).Object(); }

Json Describe( SipsnHeaderContentDisposition *hdr )
{
    return Members()
        .Text( "dispositionType", sipsnHeaderContentDispositionDispositionType( hdr ) )
        .Text( "handling", sipsnHeaderContentDispositionHandling( hdr ) )
        .Params( sipsnHeaderContentDispositionGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderCseq *hdr )
{
    return Members()
        .Number( "cseq", sipsnHeaderCseqCseq( hdr ) )
        .Text( "method", sipsnHeaderCseqMethod( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderDate *hdr ) { return Members().Time( "time", sipsnHeaderDateTime( hdr ) ).Object(); }

Json Describe( SipsnHeaderEvent *hdr )
{
    return Members()
        .Text( "eventType", sipsnHeaderEventEventType( hdr ) )
        .Text( "id", sipsnHeaderEventId( hdr ) )
        .Params( sipsnHeaderEventGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderExpires *hdr )
{
    return Members().Number( "deltaSeconds", sipsnHeaderExpiresDeltaSeconds( hdr ) ).Object();
}

Json Describe( SipsnHeaderFrom *hdr )
{
    return Members()
        .Text( "iri", sipsnHeaderFromIri( hdr ) )
        .Text( "displayName", sipsnHeaderFromDisplayName( hdr ) )
        .Text( "tag", sipsnHeaderFromTag( hdr ) )
        .Text( "epid", sipsnHeaderFromEpid( hdr ) )
        .Params( sipsnHeaderFromGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderMaxForwards *hdr )
{
    return Members().Number( "maxForwards", sipsnHeaderMaxForwardsMaxForwards( hdr ) ).Object();
}

Json Describe( SipsnHeaderMinExpires *hdr )
{
    return Members().Number( "deltaSeconds", sipsnHeaderMinExpiresDeltaSeconds( hdr ) ).Object();
}

Json Describe( SipsnHeaderMinSe *hdr )
{
    return Members()
        .Number( "deltaSeconds", sipsnHeaderMinSeDeltaSeconds( hdr ) )
        .Params( sipsnHeaderMinSeGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderOrganization *hdr )
{
    return Members().Text( "organization", sipsnHeaderOrganizationOrganization( hdr ) ).Object();
}

Json Describe( SipsnHeaderPCalledPartyId *hdr )
{
    return DescribeAddress( hdr, sipsnHeaderPCalledPartyIdIri, sipsnHeaderPCalledPartyIdDisplayName,
                            sipsnHeaderPCalledPartyIdGenericParams );
}

Json Describe( SipsnHeaderPriority *hdr )
{
    return Members().Text( "priorityValue", sipsnHeaderPriorityPriorityValue( hdr ) ).Object();
}

Json Describe( SipsnHeaderRack *hdr )
{
    return Members()
        .Number( "responseNum", sipsnHeaderRackResponseNum( hdr ) )
        .Number( "cseq", sipsnHeaderRackCseq( hdr ) )
        .Text( "method", sipsnHeaderRackMethod( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderReferTo *hdr )
{
    return DescribeAddress( hdr, sipsnHeaderReferToIri, sipsnHeaderReferToDisplayName,
                            sipsnHeaderReferToGenericParams );
}

Json Describe( SipsnHeaderReferredBy *hdr )
{
    return Members()
        .Text( "iri", sipsnHeaderReferredByIri( hdr ) )
        .Text( "displayName", sipsnHeaderReferredByDisplayName( hdr ) )
        .Text( "cid", sipsnHeaderReferredByCid( hdr ) )
        .Params( sipsnHeaderReferredByGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderRemotePartyId *hdr )
{
    return DescribeAddress( hdr, sipsnHeaderRemotePartyIdIri, sipsnHeaderRemotePartyIdDisplayName,
                            sipsnHeaderRemotePartyIdGenericParams );
}

Json Describe( SipsnHeaderReplaces *hdr )
{
    return Members()
        .Text( "callId", sipsnHeaderReplacesCallId( hdr ) )
        .Text( "toTag", sipsnHeaderReplacesToTag( hdr ) )
        .Text( "fromTag", sipsnHeaderReplacesFromTag( hdr ) )
        .Flag( "earlyOnly", sipsnHeaderReplacesEarlyOnly( hdr ) )
        .Params( sipsnHeaderReplacesGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderReplyTo *hdr )
{
    return DescribeAddress( hdr, sipsnHeaderReplyToIri, sipsnHeaderReplyToDisplayName,
                            sipsnHeaderReplyToGenericParams );
}

Json Describe( SipsnHeaderRetryAfter *hdr )
{
    return Members()
        .Number( "deltaSeconds", sipsnHeaderRetryAfterDeltaSeconds( hdr ) )
        .Number( "duration", sipsnHeaderRetryAfterDuration( hdr ) )
        .Params( sipsnHeaderRetryAfterGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderRseq *hdr )
{
    return Members().Number( "responseNum", sipsnHeaderRseqResponseNum( hdr ) ).Object();
}

Json Describe( SipsnHeaderServer *hdr ) { return Members().Text( "server", sipsnHeaderServerServer( hdr ) ).Object(); }

Json Describe( SipsnHeaderSessionExpires *hdr )
{
    return Members()
        .Number( "deltaSeconds", sipsnHeaderSessionExpiresDeltaSeconds( hdr ) )
        .Text( "refresher", sipsnHeaderSessionExpiresRefresher( hdr ) )
        .Params( sipsnHeaderSessionExpiresGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderSessionId *hdr )
{
    return Members()
        .Text( "localUuid", sipsnHeaderSessionIdLocalUuid( hdr ) )
        .Text( "remoteUuid", sipsnHeaderSessionIdRemoteUuid( hdr ) )
        .Params( sipsnHeaderSessionIdGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderSubject *hdr )
{
    return Members().Text( "subject", sipsnHeaderSubjectSubject( hdr ) ).Object();
}

Json Describe( SipsnHeaderSubscriptionState *hdr )
{
    return Members()
        .Text( "substateValue", sipsnHeaderSubscriptionStateSubstateValue( hdr ) )
        .Text( "reason", sipsnHeaderSubscriptionStateReason( hdr ) )
        .Number( "expires", sipsnHeaderSubscriptionStateExpires( hdr ) )
        .Number( "retryAfter", sipsnHeaderSubscriptionStateRetryAfter( hdr ) )
        .Params( sipsnHeaderSubscriptionStateGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderTimestamp *hdr )
{
    return Members().Text( "timestampValue", sipsnHeaderTimestampTimestampValue( hdr ) ).Object();
}

Json Describe( SipsnHeaderTo *hdr )
{
    return Members()
        .Text( "iri", sipsnHeaderToIri( hdr ) )
        .Text( "displayName", sipsnHeaderToDisplayName( hdr ) )
        .Text( "tag", sipsnHeaderToTag( hdr ) )
        .Text( "epid", sipsnHeaderToEpid( hdr ) )
        .Params( sipsnHeaderToGenericParams( hdr ) )
        .Object();
}

Json Describe( SipsnHeaderUserAgent *hdr )
{
    return Members().Text( "userAgent", sipsnHeaderUserAgentUserAgent( hdr ) ).Object();
}

} // namespace tool
