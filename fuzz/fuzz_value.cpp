// Any text decodes as a structured value or as none. What was decoded encodes, the encoding is a fixed point, and it
// decodes to an equal value; what was not has a reason. The first byte of the input picks the type; the rest is the
// text.
#include "fuzz.h"

#include "sipsn/sipsn_schema.h"
#include "sipsn/sipsn_value_internal.h"

#include <iterator>

#define VALUE( Type, ... ) SIPSN_DECLARE_TEXT( Type )
#include "sipsn/sipsn_values.inc"

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
bool HidesParam( PbObj *value )
{
    const SipsnSchemaType *type   = sipsnSchemaTypeOf( value );
    const int64_t          member = sipsnSchemaMemberIndex( type, "params" );
    if( member < 0 ) return false;
    pb::Ref params{ sipsnGenericParamsFrom( sipsnSchemaObject( value, member ) ) };
    for( int64_t at = 0; at < type->memberCount; ++at ) {
        const char *param = sipsnSchemaMemberAt( type, at )->param;
        if( param && sipsnSchemaHas( value, at ) && sipsnGenericParamsHasParamCstr( params.Get(), param, -1 ) )
            return true;
    }
    return false;
}

// ---- Checks ----------------------------------------------------------------------------------------

template< auto tryDecode, auto encode > void Check( const char *type, PbString *string )
{
    const fuzz::Text input{ string };
    pb::Ref          value{ tryDecode( input.Chs(), input.Length() ) };
    pb::Ref          reason{ sipsnSchemaWhyNot( sipsnSchemaTypeByName( type ), string, nullptr ) };
    REQUIRE( bool( value ) != bool( reason ) );
    if( !value ) return;
    pb::Ref encoded{ encode( value.Get() ) };
    if( !IsReadable( value.Get() ) ) return;

    const fuzz::Text text{ encoded.Get() };
    pb::Ref          again{ tryDecode( text.Chs(), text.Length() ) };
    REQUIRE( bool( again ) );
    pb::Ref encodedAgain{ encode( again.Get() ) };
    REQUIRE( pbStringEquals( encoded.Get(), encodedAgain.Get() ) );
    REQUIRE( HidesParam( pb::AsObj( value.Get() ) ) ||
             pbObjCompare( pb::AsObj( value.Get() ), pb::AsObj( again.Get() ) ) == 0 );
}

constexpr void ( *checks[] )( PbString *string ) = {
#define VALUE( Type, ... )                                                                                             \
    []( PbString *string ) { Check< sipsn___##Type##TryDecode, sipsn___##Type##Encode >( "Sipsn" #Type, string ); },
#include "sipsn/sipsn_values.inc"
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    if( size == 0 ) return 0;
    fuzz::Start();
    checks[ data[ 0 ] % std::size( checks ) ]( fuzz::String( data + 1, size - 1 ).Get() );
    return 0;
}
