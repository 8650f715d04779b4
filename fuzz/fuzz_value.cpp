// Any text decodes as a structured value or as none. What was decoded encodes, the encoding is a fixed point, and it
// decodes to an equal value. The first byte of the input picks the type; the rest is the text.
#include "fuzz.h"

#include "sipsn/sipsn_value_internal.h"

#include <initializer_list>
#include <iterator>

namespace {

// ---- What is not meant to be read back -------------------------------------------------------------

template< class Value > bool IsReadable( Value * ) { return true; }

// Leading zeros are not written.
bool IsReadable( SipsnWarningValue *wv ) { return sipsnWarningValueWarnCode( wv ) >= 100; }

// The content of a quoted string is written without quotes.
bool IsReadable( SipsnDiversion *diversion )
{
    pb::Ref    reason{ sipsnDiversionReason( diversion ) };
    pb::Ref    privacy{ sipsnDiversionPrivacy( diversion ) };
    pb::Ref    screen{ sipsnDiversionScreen( diversion ) };
    const auto readable = []( PbString *content ) { return !content || sipsnTokenOk( content ); };
    return readable( reason.Get() ) && readable( privacy.Get() ) && readable( screen.Get() );
}

// An instance that is quoted with escapes is no instance, but a generic parameter, and is written without them.
bool IsReadable( SipsnContact *contact )
{
    pb::Ref    params{ sipsnContactGenericParams( contact ) };
    pb::Ref    value{ sipsnGenericParamsParamValueNonNormalizedCstr( params.Get(), "+sip.instance", -1 ) };
    const bool hidden = sipsnContactHasSipInstance( contact );
    return hidden || !value || !sipsnSipInstanceOk( value.Get() );
}

// A member that is present keeps a generic parameter of its name out of the text.
struct Member
{
    const char *name;
    bool        present;
};

bool Hides( SipsnGenericParams *owned, std::initializer_list< Member > members )
{
    pb::Ref params{ owned };
    return std::ranges::any_of( members, [ & ]( const Member &member ) {
        return member.present && sipsnGenericParamsHasParamCstr( params.Get(), member.name, -1 );
    } );
}

template< class Value > bool HidesParam( Value * ) { return false; }

bool HidesParam( SipsnAccept *accept )
{
    return Hides( sipsnAcceptGenericParams( accept ), { { "q", sipsnAcceptHasQvalue( accept ) } } );
}
bool HidesParam( SipsnAcceptEncoding *ae )
{
    return Hides( sipsnAcceptEncodingGenericParams( ae ), { { "q", sipsnAcceptEncodingHasQvalue( ae ) } } );
}
bool HidesParam( SipsnCallInfo *callInfo )
{
    return Hides( sipsnCallInfoGenericParams( callInfo ), { { "purpose", sipsnCallInfoHasPurpose( callInfo ) } } );
}
bool HidesParam( SipsnContact *contact )
{
    return Hides( sipsnContactGenericParams( contact ),
                  { { "q", sipsnContactHasQvalue( contact ) },
                    { "expires", sipsnContactHasExpires( contact ) },
                    { "rc", sipsnContactHasRc( contact ) },
                    { "mp", sipsnContactHasMp( contact ) },
                    { "np", sipsnContactHasNp( contact ) },
                    { "+sip.instance", sipsnContactHasSipInstance( contact ) } } );
}
bool HidesParam( SipsnDiversion *diversion )
{
    return Hides( sipsnDiversionGenericParams( diversion ), { { "reason", sipsnDiversionHasReason( diversion ) },
                                                              { "counter", sipsnDiversionHasCounter( diversion ) },
                                                              { "limit", sipsnDiversionHasLimit( diversion ) },
                                                              { "privacy", sipsnDiversionHasPrivacy( diversion ) },
                                                              { "screen", sipsnDiversionHasScreen( diversion ) } } );
}
bool HidesParam( SipsnHistoryInfo *hi )
{
    return Hides( sipsnHistoryInfoGenericParams( hi ), { { "index", true },
                                                         { "rc", sipsnHistoryInfoHasRc( hi ) },
                                                         { "mp", sipsnHistoryInfoHasMp( hi ) },
                                                         { "np", sipsnHistoryInfoHasNp( hi ) } } );
}
bool HidesParam( SipsnReason *reason )
{
    return Hides( sipsnReasonGenericParams( reason ),
                  { { "cause", sipsnReasonHasCause( reason ) }, { "text", sipsnReasonHasText( reason ) } } );
}
bool HidesParam( SipsnUuiValue *value )
{
    return Hides( sipsnUuiValueGenericParams( value ), { { "encoding", sipsnUuiValueHasEncoding( value ) },
                                                         { "purpose", sipsnUuiValueHasPurpose( value ) },
                                                         { "content", sipsnUuiValueHasContent( value ) } } );
}
bool HidesParam( SipsnVia *via )
{
    return Hides( sipsnViaGenericParams( via ), { { "ttl", sipsnViaHasTtl( via ) },
                                                  { "maddr", sipsnViaHasMaddr( via ) },
                                                  { "received", sipsnViaHasReceived( via ) },
                                                  { "rport", sipsnViaHasRport( via ) },
                                                  { "branch", sipsnViaHasBranch( via ) } } );
}

// ---- Checks ----------------------------------------------------------------------------------------

template< auto tryDecode, auto encode > void Check( const PbChar *chs, int64_t length )
{
    pb::Ref value{ tryDecode( chs, length ) };
    if( !value ) return;
    pb::Ref encoded{ encode( value.Get() ) };
    if( !IsReadable( value.Get() ) ) return;

    const fuzz::Text text{ encoded.Get() };
    pb::Ref          again{ tryDecode( text.Chs(), text.Length() ) };
    REQUIRE( bool( again ) );
    pb::Ref encodedAgain{ encode( again.Get() ) };
    REQUIRE( pbStringEquals( encoded.Get(), encodedAgain.Get() ) );
    REQUIRE( HidesParam( value.Get() ) || pbObjCompare( pb::AsObj( value.Get() ), pb::AsObj( again.Get() ) ) == 0 );
}

constexpr void ( *checks[] )( const PbChar *chs, int64_t length ) = {
    Check< sipsn___AcceptTryDecode, sipsn___AcceptEncode >,
    Check< sipsn___AcceptEncodingTryDecode, sipsn___AcceptEncodingEncode >,
    Check< sipsn___AlertInfoTryDecode, sipsn___AlertInfoEncode >,
    Check< sipsn___CallInfoTryDecode, sipsn___CallInfoEncode >,
    Check< sipsn___ContactTryDecode, sipsn___ContactEncode >,
    Check< sipsn___DiversionTryDecode, sipsn___DiversionEncode >,
    Check< sipsn___ErrorInfoTryDecode, sipsn___ErrorInfoEncode >,
    Check< sipsn___GenericParamTryDecode, sipsn___GenericParamEncode >,
    Check< sipsn___GenericParamsTryDecode, sipsn___GenericParamsEncode >,
    Check< sipsn___HistoryInfoTryDecode, sipsn___HistoryInfoEncode >,
    Check< sipsn___IdentityValueTryDecode, sipsn___IdentityValueEncode >,
    Check< sipsn___ReasonTryDecode, sipsn___ReasonEncode >,
    Check< sipsn___RouteTryDecode, sipsn___RouteEncode >,
    Check< sipsn___UuiValueTryDecode, sipsn___UuiValueEncode >,
    Check< sipsn___ViaTryDecode, sipsn___ViaEncode >,
    Check< sipsn___WarningValueTryDecode, sipsn___WarningValueEncode >,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    if( size == 0 ) return 0;
    fuzz::Start();
    pb::Ref          string = fuzz::String( data + 1, size - 1 );
    const fuzz::Text text{ string.Get() };
    checks[ data[ 0 ] % std::size( checks ) ]( text.Chs(), text.Length() );
    return 0;
}
