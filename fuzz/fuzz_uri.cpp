// Any text decodes as a URI or as none. What was decoded, or built of parts that are taken, encodes to an IRI and to a
// URI that decode to an equal one. Equivalence is reflexive and symmetric, and equal URIs are equivalent. Each line of
// the input is a text, the first one a part as well.
#include "fuzz.h"

#include "sipsn/sipsn_schema.h"

#include <iterator>
#include <vector>

namespace {

using UriRef = pb::Ref< SipsnUri >;

// ---- One URI ---------------------------------------------------------------------------------------

// The rest of other schemes is kept as it stands, and is stable only once it has been both.
bool IsStable( SipsnUri *uri ) { return sipsnUriIsSip( uri ) || sipsnUriIsTel( uri ); }

void CheckForms( SipsnUri *uri )
{
    REQUIRE( sipsnSchemaComplete( sipsnUriObj( uri ) ) );
    pb::Ref iri{ sipsnUriEncode( uri ) };
    REQUIRE( sipsnIriOk( iri.Get() ) );
    UriRef again{ sipsnUriTryDecode( iri.Get() ) };
    REQUIRE( again && sipsnUriEquals( uri, again.Get() ) );

    pb::Ref ascii{ sipsnUriEncodeUri( uri ) };
    REQUIRE( bool( ascii ) );
    UriRef onWire{ sipsnUriTryDecodeUri( ascii.Get() ) };
    REQUIRE( bool( onWire ) );
    REQUIRE( !IsStable( uri ) || sipsnUriEquals( uri, onWire.Get() ) );
    pb::Ref asciiAgain{ sipsnUriEncodeUri( onWire.Get() ) };
    REQUIRE( !IsStable( uri ) || pbStringEquals( ascii.Get(), asciiAgain.Get() ) );

    for( int64_t place = SIPSN_URI_PLACE_REQUEST; place <= SIPSN_URI_PLACE_OUTSIDE; ++place )
        sipsnUriAllowedIn( uri, place );
}

// ---- Two -------------------------------------------------------------------------------------------

void CheckTogether( SipsnUri *a, SipsnUri *b )
{
    const bool equivalent = sipsnUriEquivalent( a, b );
    REQUIRE( equivalent == sipsnUriEquivalent( b, a ) );
    REQUIRE( equivalent || !sipsnUriEquals( a, b ) );
}

// ---- Parts -----------------------------------------------------------------------------------------

struct Part
{
    bool ( *ok )( PbString *text );
    void ( *set )( SipsnUri **uri, PbString *text );
};

void SetParam( SipsnUri **uri, PbString *param )
{
    pb::Ref params{ pbVectorCreate() };
    pbVectorAppendString( params.Slot(), param );
    sipsnUriSetOtherParamsVector( uri, params.Get() );
}

void SetHeader( SipsnUri **uri, PbString *header )
{
    pb::Ref headers{ pbVectorCreate() };
    pbVectorAppendString( headers.Slot(), header );
    pbVectorAppendString( headers.Slot(), header );
    sipsnUriSetHeadersVector( uri, headers.Get() );
}

constexpr Part ofSip[] = {
    { sipsnUriUserOk, sipsnUriSetUser }, { sipsnUriHostOk, sipsnUriSetHost }, { sipsnUriHeaderOk, SetHeader } };
constexpr Part ofTel[]  = { { sipsnUriNumberIsGlobal, sipsnUriSetNumber } };
constexpr Part ofBoth[] = {
    { sipsnUriTokenOk, sipsnUriSetTransport },
    { sipsnUriTokenOk, sipsnUriSetUserParam },
    { sipsnUriTokenOk, sipsnUriSetMethod },
    { sipsnUriHostOk, sipsnUriSetMaddr },
    { sipsnUriIsdnSubaddressOk, sipsnUriSetIsdnSubaddress },
    { sipsnUriExtensionOk, sipsnUriSetExtension },
    { sipsnUriContextOk, sipsnUriSetPhoneContext },
    { sipsnUriRoutingNumberOk, sipsnUriSetCic },
    { sipsnUriRoutingContextOk, sipsnUriSetCicContext },
    { sipsnUriRoutingNumberOk, sipsnUriSetRn },
    { sipsnUriRoutingContextOk, sipsnUriSetRnContext },
    { sipsnUriTrunkGroupOk, sipsnUriSetTgrp },
    { sipsnUriContextOk, sipsnUriSetTrunkContext },
};

template< size_t count > void SetAll( UriRef &uri, const Part ( &parts )[ count ], PbString *text )
{
    for( const Part &part : parts )
        if( part.ok( text ) ) part.set( uri.Slot(), text );
}

void CheckParts( PbString *text )
{
    UriRef sip{ sipsnUriCreateSipCstr( "h", -1 ) };
    SetAll( sip, ofSip, text );
    SetAll( sip, ofBoth, text );
    if( sipsnUriHasUser( sip.Get() ) && sipsnUriPasswordOk( text ) ) sipsnUriSetPassword( sip.Slot(), text );
    CheckForms( sip.Get() );

    UriRef tel{ sipsnUriCreateTelCstr( "+1", -1 ) };
    SetAll( tel, ofTel, text );
    SetAll( tel, ofBoth, text );
    CheckForms( tel.Get() );
    if( sipsnUriHasPhoneContext( tel.Get() ) && sipsnUriNumberOk( text ) ) sipsnUriSetNumber( tel.Slot(), text );
    CheckForms( tel.Get() );

    UriRef named{ sipsnUriCreateSipCstr( "h", -1 ) };
    if( sipsnUriOtherParamOk( text ) ) SetParam( named.Slot(), text );
    CheckForms( named.Get() );

    pb::Ref scheme{ pbStringCreateFromCstr( "x", -1 ) };
    UriRef  other{ sipsnUriCreate( scheme.Get() ) };
    if( sipsnUriRestOk( text ) ) sipsnUriSetRest( other.Slot(), text );
    CheckForms( other.Get() );

    pb::Ref escaped{ sipsnUriEscape( text ) };
    REQUIRE( text->length == 0 || sipsnUriUserOk( escaped.Get() ) );
    pb::Ref unescaped{ sipsnUriTryUnescape( escaped.Get() ) };
    REQUIRE( unescaped && pbStringEquals( unescaped.Get(), text ) );
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Start();
    std::vector< UriRef > uris;
    for( const uint8_t *line = data, *end = data + size; line <= end; ) {
        const uint8_t *lineEnd = std::find( line, end, '\n' );
        const auto     text    = fuzz::String( line, size_t( lineEnd - line ) );
        if( line == data ) CheckParts( text.Get() );
        UriRef uri{ sipsnUriTryDecode( text.Get() ) };
        UriRef onWire{ sipsnUriTryDecodeUri( text.Get() ) };
        if( uri ) CheckForms( uri.Get() );
        if( onWire ) CheckForms( onWire.Get() );
        REQUIRE( !uri || !IsStable( uri.Get() ) || !onWire || sipsnUriEquals( uri.Get(), onWire.Get() ) );
        for( const UriRef &other : uris )
            if( uri ) CheckTogether( uri.Get(), other.Get() );
        if( uri ) {
            CheckTogether( uri.Get(), uri.Get() );
            REQUIRE( sipsnUriEquivalent( uri.Get(), uri.Get() ) );
            if( uris.size() < 4 ) uris.push_back( std::move( uri ) );
        }
        line = lineEnd + 1;
    }
    return 0;
}
