// SipsnGenericParam: one ";name=value" of a value or header field.
#include "sipsn_generic_param.h"

#include "sipsn_quotable_string.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( GenericParam )

using sipsn::BasicCursor, sipsn::Span, sipsn::StringFrom, sipsn::TextWriter;

struct SipsnGenericParam
{
    PbObj     obj;
    PbString *name;
    int64_t   valueType;
    PbString *value;

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnGenericParam::name, &SipsnGenericParam::valueType, &SipsnGenericParam::value };
    }

    struct CompareOrder // by the normal form of the value
    {
        static int64_t Compare( SipsnGenericParam &a, SipsnGenericParam &b );
    };
};

SIPSN_DEFINE_TYPE( SipsnGenericParam, sipsnGenericParam, SIPSN_GENERIC_PARAM, param, param, sipsn___GenericParamEncode )

// Takes over both references; a null value goes with the type "none".
static SipsnGenericParam *CreateOwning( PbString *name, int64_t type, PbString *value )
{
    SipsnGenericParam *param = pb::New< SipsnGenericParam >();
    param->name              = name;
    param->valueType         = type;
    param->value             = value;
    return param;
}

SipsnGenericParam *sipsnGenericParamCreate( PbString *name )
{
    PB_ASSERT( sipsnGenericParamNameOk( name ) );
    return CreateOwning( sipsnGenericParamNameNormalize( name ), SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE, nullptr );
}

SipsnGenericParam *sipsnGenericParamCreateCstr( const char *name, int64_t nameLength )
{
    return sipsnGenericParamCreate( StringFrom( name, nameLength ).Get() );
}

SipsnGenericParam *sipsnGenericParamCreateWcstr( const wchar_t *name, int64_t nameLength )
{
    return sipsnGenericParamCreate( StringFrom( name, nameLength ).Get() );
}

SipsnGenericParam *sipsnGenericParamCreateWithValue( PbString *name, int64_t type, PbString *value )
{
    PB_ASSERT( sipsnGenericParamNameOk( name ) );
    PB_ASSERT( sipsnGenericParamValueOk( type, value ) );
    return CreateOwning( sipsnGenericParamNameNormalize( name ), type, pb::Retain( value ) );
}

SipsnGenericParam *sipsnGenericParamCreateWithValueCstr( const char *name, int64_t nameLength, int64_t type,
                                                         PbString *value )
{
    return sipsnGenericParamCreateWithValue( StringFrom( name, nameLength ).Get(), type, value );
}

SipsnGenericParam *sipsnGenericParamCreateWithValueWcstr( const wchar_t *name, int64_t nameLength, int64_t type,
                                                          PbString *value )
{
    return sipsnGenericParamCreateWithValue( StringFrom( name, nameLength ).Get(), type, value );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsn::PeekName( SipsnGenericParam *param ) { return param->name; }

bool      sipsnGenericParamNameOk( PbString *name ) { return sipsnTokenOk( name ); }
PbString *sipsnGenericParamNameNormalize( PbString *name ) { return sipsnTokenNormalize( name ); }

PbString *sipsnGenericParamName( SipsnGenericParam *param ) { return PB_GET( param, name ); }
void      sipsnGenericParamSetName( SipsnGenericParam **param, PbString *name )
{
    PB_SET( param, name, sipsnGenericParamNameOk( name ), sipsnGenericParamNameNormalize( name ) );
}

void sipsnGenericParamSetNameCstr( SipsnGenericParam **param, const char *name, int64_t nameLength )
{
    sipsnGenericParamSetName( param, StringFrom( name, nameLength ).Get() );
}

void sipsnGenericParamSetNameWcstr( SipsnGenericParam **param, const wchar_t *name, int64_t nameLength )
{
    sipsnGenericParamSetName( param, StringFrom( name, nameLength ).Get() );
}

bool      sipsnGenericParamHasValue( SipsnGenericParam *param ) { return PB_HAS( param, value ); }
int64_t   sipsnGenericParamValueType( SipsnGenericParam *param ) { return PB_GET( param, valueType ); }
PbString *sipsnGenericParamValueNonNormalized( SipsnGenericParam *param ) { return PB_GET( param, value ); }

PbString *sipsnGenericParamValueNormalized( SipsnGenericParam *param )
{
    PB_ASSERT( param );
    return param->value ? sipsnGenericParamValueNormalize( param->valueType, param->value ) : nullptr;
}

void sipsnGenericParamSetValue( SipsnGenericParam **param, int64_t type, PbString *value )
{
    PB_SET( param, value, sipsnGenericParamValueOk( type, value ), pb::Retain( value ) );
    ( *param )->valueType = type;
}

void sipsnGenericParamDelValue( SipsnGenericParam **param )
{
    PB_DEL( param, value );
    ( *param )->valueType = SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE;
}

void sipsnGenericParamNormalizeValue( SipsnGenericParam **param )
{
    PB_ASSERT_SLOT( param );
    if( !( *param )->value ) return;
    PB_UNSHARE( param );
    pb::Set( ( *param )->value, sipsnGenericParamValueNormalized( *param ) );
}

int64_t SipsnGenericParam::CompareOrder::Compare( SipsnGenericParam &a, SipsnGenericParam &b )
{
    if( int64_t order = pb::Kind< PbString * >::Compare( a.name, b.name ) ) return order;
    if( int64_t order = pb::Kind< int64_t >::Compare( a.valueType, b.valueType ) ) return order;
    pb::Ref valueA{ sipsnGenericParamValueNormalized( &a ) };
    pb::Ref valueB{ sipsnGenericParamValueNormalized( &b ) };
    return pb::Kind< PbString * >::Compare( valueA.Get(), valueB.Get() );
}

// ---- Text form -------------------------------------------------------------------------------------

// The value behind "=": the first form that matches is the only one tried.
template< class Link > static PbString *TakeValue( BasicCursor< Link > &in, int64_t *type )
{
    if( Span token = in.Take( sipsn___SkipToken, "a token" ) ) {
        *type = SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN;
        return token.ToString();
    }
    if( Span host = in.Take( sipsn___SkipHost, "a host" ) ) {
        *type             = SIPSN_GENERIC_PARAM_VALUE_TYPE_HOST;
        PbString *decoded = sipsn___HostTryDecode( host.chs, host.length );
        if( !decoded ) in.Refuse( host, "a host" );
        return decoded;
    }
    *type       = SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING;
    Span quoted = in.Take( sipsn___SkipQuotedString, "a quoted string" );
    return quoted ? sipsn::Unquote( quoted.chs, quoted.length ) : nullptr;
}

template< class Link > SipsnGenericParam *sipsn::TakeGenericParam( BasicCursor< Link > &in )
{
    Span name = in.Take( sipsn___SkipToken, "a parameter" );
    if( !name ) return nullptr;
    int64_t   type  = SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE;
    PbString *value = nullptr;
    if( in.Take( sipsn___SkipEqual ) ) {
        value = TakeValue( in, &type );
        if( !value ) return nullptr;
    }
    // A token is ASCII, and those that are constants seldom name a parameter.
    PbString *lower = pb___StringCreateUninitialized( name.length );
    pb::CopyInOtherCase< 'A' >( lower->chs, name.chs, name.length );
    return CreateOwning( lower, type, value );
}

template SipsnGenericParam *sipsn::TakeGenericParam( Cursor & );
template SipsnGenericParam *sipsn::TakeGenericParam( WatchedCursor & );

void sipsn::WriteGenericParam( TextWriter &out, SipsnGenericParam *param )
{
    out.Text( param->name );
    if( param->valueType == SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE ) return;
    out.Char( '=' );
    switch( param->valueType ) {
    case SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN: return out.Text( param->value );
    case SIPSN_GENERIC_PARAM_VALUE_TYPE_HOST: return out.Take( sipsn___HostEncode( param->value ) );
    case SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING:
        return out.Take( sipsn___QuotableStringEncode( param->value ) );
    default: PB_ABORT_UNLESS( nullptr, "SIPSN_GENERIC_PARAM_VALUE_TYPE not implemented", false );
    }
}

namespace {

struct Form
{
    template< class Link > SipsnGenericParam *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref param{ sipsn::TakeGenericParam( in ) };
        return in.AtEnd() ? param.Detach() : nullptr;
    }

    void Write( TextWriter &out, SipsnGenericParam &param ) const { sipsn::WriteGenericParam( out, &param ); }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( GenericParam, param, form )
