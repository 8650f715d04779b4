// Any text decodes as a token family's value or as none. What was decoded is valid, and its encoding decodes to the
// same value. A valid text has a normal form that is valid and its own. All families are tried on every input.
#include "fuzz.h"

#include "exports.h"
#include "sipsn/sipsn_skip_internal.h"
#include "sipsn/sipsn_token_internal.h"

namespace {

using Check = void( const PbChar *chs, int64_t length );

template< auto tryDecode, auto encode, auto ok > void CheckInt( const PbChar *chs, int64_t length )
{
    const int64_t value = tryDecode( chs, length );
    if( value == -1 ) return;
    REQUIRE( ok( value ) );
    pb::Ref encoded{ encode( value ) };
    REQUIRE( tryDecode( pbStringBacking( encoded.Get() ), pbStringLength( encoded.Get() ) ) == value );
}

template< auto tryDecode, auto encode, auto ok > void CheckString( const PbChar *chs, int64_t length )
{
    pb::Ref value{ tryDecode( chs, length ) };
    if( !value ) return;
    REQUIRE( ok( value.Get() ) );
    pb::Ref          encoded{ encode( value.Get() ) };
    const fuzz::Text text{ encoded.Get() };
    pb::Ref          again{ tryDecode( text.Chs(), text.Length() ) };
    REQUIRE( again && pbStringEquals( value.Get(), again.Get() ) );
}

// Decoders that abort on what the scanner has not matched.
void CheckWarnCode( const PbChar *chs, int64_t length )
{
    const int64_t count = sipsn___SkipWarnCode( chs, length );
    if( count == 0 ) return;
    const int64_t code = sipsn___WarnCodeDecode( chs, count );
    REQUIRE( sipsnWarnCodeOk( code ) );
    pb::Ref encoded{ sipsn___WarnCodeEncode( code ) };
    pb::Ref text{ sipsnWarnCodeToString( code ) };
}

// What the scanner matches decodes.
template< auto skip, auto tryDecode > void CheckVouched( const PbChar *chs, int64_t length )
{
    const int64_t count = skip( chs, length );
    if( count > 0 ) REQUIRE( bool( pb::Ref{ tryDecode( chs, count ) } ) );
}

struct NormalForm
{
    bool ( *ok )( PbString *string );
    PbString *( *normalize )( PbString *string );
};

// All but that of generic parameters' values, which takes their type too.
std::vector< NormalForm > AllNormalForms()
{
    std::vector< NormalForm > forms;
    for( const std::string &name : ExportsBetween( "sipsn", "Normalize" ) )
        if( name != "GenericParamValue" )
            forms.push_back( { Exported< bool( PbString * ) >( "sipsn" + name + "Ok" ),
                               Exported< PbString *( PbString * ) >( "sipsn" + name + "Normalize" ) } );
    REQUIRE( !forms.empty() );
    return forms;
}

void CheckNormalForms( const PbChar *chs, int64_t length )
{
    static const std::vector< NormalForm > forms = AllNormalForms();

    pb::Ref string{ pbStringCreateFromCharsCopy( chs, length ) };
    for( const auto &[ ok, normalize ] : forms ) {
        if( !ok( string.Get() ) ) continue;
        pb::Ref normal{ normalize( string.Get() ) };
        REQUIRE( ok( normal.Get() ) );
        pb::Ref again{ normalize( normal.Get() ) };
        REQUIRE( pbStringEquals( normal.Get(), again.Get() ) );
    }
}

// Any string that is valid, in Unicode or not, goes out and comes back valid.
void CheckHostOut( const PbChar *chs, int64_t length )
{
    pb::Ref host{ pbStringCreateFromCharsCopy( chs, length ) };
    if( !sipsnHostOk( host.Get() ) ) return;
    pb::Ref          encoded{ sipsn___HostEncode( host.Get() ) };
    const fuzz::Text text{ encoded.Get() };
    REQUIRE( sipsn___SkipHost( text.Chs(), text.Length() ) == text.Length() );
    pb::Ref again{ sipsn___HostTryDecode( text.Chs(), text.Length() ) };
    REQUIRE( !again || sipsnHostOk( again.Get() ) );
}

// Diversion keeps quoted content that is no token.
constexpr auto anyText = []( PbString * ) { return true; };

constexpr Check *checks[] = {
    CheckInt< sipsn___PortTryDecode, sipsn___PortEncode, sipsnPortOk >,
    CheckInt< sipsn___DeltaSecondsTryDecode, sipsn___DeltaSecondsEncode, sipsnDeltaSecondsOk >,
    CheckInt< sipsn___TtlTryDecode, sipsn___TtlEncode, sipsnTtlOk >,
    CheckInt< sipsn___DiversionCounterTryDecode, sipsn___DiversionCounterEncode, sipsnDiversionCounterOk >,
    CheckInt< sipsn___DiversionLimitTryDecode, sipsn___DiversionLimitEncode, sipsnDiversionLimitOk >,
    CheckInt< sipsn___QvalueTryDecode, sipsn___QvalueEncode, sipsnQvalueOk >,
    CheckString< sipsn___QuotableStringTryDecode, sipsn___QuotableStringEncode, sipsnQuotableStringOk >,
    CheckString< sipsn___DisplayNameTryDecode, sipsn___DisplayNameEncode, sipsnDisplayNameOk >,
    CheckString< sipsn___ReasonPhraseDecode, sipsn___ReasonPhraseEncode, sipsnReasonPhraseOk >,
    CheckString< sipsn___HostTryDecode, sipsn___HostEncode, sipsnHostOk >,
    CheckString< sipsn___DiversionPrivacyTryDecode, sipsn___DiversionPrivacyEncode, anyText >,
    CheckString< sipsn___DiversionReasonTryDecode, sipsn___DiversionReasonEncode, anyText >,
    CheckString< sipsn___DiversionScreenTryDecode, sipsn___DiversionScreenEncode, anyText >,
    CheckVouched< sipsn___SkipQuotedString, sipsn___QuotableStringTryDecode >,
    CheckVouched< sipsn___SkipDisplayName, sipsn___DisplayNameTryDecode >,
    CheckVouched< sipsn___SkipDiversionPrivacy, sipsn___DiversionPrivacyTryDecode >,
    CheckNormalForms,
    CheckWarnCode,
    CheckHostOut,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Start();
    pb::Ref          string = fuzz::String( data, size );
    const fuzz::Text text{ string.Get() };
    for( Check *check : checks ) check( text.Chs(), text.Length() );
    return 0;
}
