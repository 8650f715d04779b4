// SipsnGenericParams: the ";name=value" parameters of a value or header field.
#include "sipsn_generic_params.h"

#include "sipsn_skip_internal.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( GenericParams )

using sipsn::BasicCursor, sipsn::StringFrom, sipsn::TextWriter;

struct SipsnGenericParams
{
    PbObj   obj;
    PbDict *params; // name to SipsnGenericParam; null exactly when there are none, which most values have

    static constexpr auto Members() { return pb::Members{ &SipsnGenericParams::params }; }
};

SIPSN_DEFINE_TYPE( SipsnGenericParams, sipsnGenericParams, SIPSN_GENERIC_PARAMS, params, params,
                   sipsn___GenericParamsEncode )

SipsnGenericParams *sipsnGenericParamsCreate( void ) { return pb::New< SipsnGenericParams >(); }

SipsnGenericParams *sipsn::NoParams()
{
    static constinit SipsnGenericParams none{ { pb::sortOf< SipsnGenericParams >, pb::uncounted, 0 }, nullptr };
    return &none;
}

// ---- By index --------------------------------------------------------------------------------------

int64_t sipsnGenericParamsLength( SipsnGenericParams *params )
{
    PB_ASSERT( params );
    return params->params ? pbDictLength( params->params ) : 0;
}

// The range is the dictionary's to check, also when there is none.
SipsnGenericParam *sipsn::PeekParamAt( SipsnGenericParams *params, int64_t index )
{
    PB_ASSERT( params );
    PbDict *dict = params->params ? params->params : pbDictCreate();
    return reinterpret_cast< SipsnGenericParam * >( pb___DictPeekValueAt( dict, index ) );
}

SipsnGenericParam *sipsnGenericParamsParamAt( SipsnGenericParams *params, int64_t index )
{
    return pb::Retain( sipsn::PeekParamAt( params, index ) );
}

int64_t sipsnGenericParamsParamValueTypeAt( SipsnGenericParams *params, int64_t index )
{
    return sipsnGenericParamValueType( sipsn::PeekParamAt( params, index ) );
}

PbString *sipsnGenericParamsParamValueNonNormalizedAt( SipsnGenericParams *params, int64_t index )
{
    return sipsnGenericParamValueNonNormalized( sipsn::PeekParamAt( params, index ) );
}

PbString *sipsnGenericParamsParamValueNormalizedAt( SipsnGenericParams *params, int64_t index )
{
    return sipsnGenericParamValueNormalized( sipsn::PeekParamAt( params, index ) );
}

PbVector *sipsnGenericParamsParamsVector( SipsnGenericParams *params )
{
    PB_ASSERT( params );
    return params->params ? pbDictValuesVector( params->params ) : pbVectorCreate();
}

void sipsnGenericParamsSetParamsVector( SipsnGenericParams **params, PbVector *vector )
{
    PB_ASSERT_SLOT( params );
    PB_ASSERT( vector );
    PB_UNSHARE( params );
    pb::Del( ( *params )->params );
    for( int64_t at = 0, length = pbVectorLength( vector ); at < length; ++at ) {
        SipsnGenericParam *gp = sipsnGenericParamFrom( pb___VectorPeek( vector, at ) );
        PB_ASSERT( gp );
        sipsnGenericParamsSetParam( params, gp );
    }
}

// ---- By name ---------------------------------------------------------------------------------------

// The parameter of a name, without a reference of its own, or null.
static SipsnGenericParam *Peek( SipsnGenericParams *params, PbString *name )
{
    PB_ASSERT( params );
    pb::Ref normal{ sipsnGenericParamNameNormalize( name ) };
    if( !params->params ) return nullptr;
    return reinterpret_cast< SipsnGenericParam * >( pb___DictPeek( params->params, normal.Get() ) );
}

bool sipsnGenericParamsHasParam( SipsnGenericParams *params, PbString *name )
{
    return Peek( params, name ) != nullptr;
}

bool sipsnGenericParamsHasParamCstr( SipsnGenericParams *params, const char *name, int64_t nameLength )
{
    return sipsnGenericParamsHasParam( params, StringFrom( name, nameLength ).Get() );
}

bool sipsnGenericParamsHasParamWcstr( SipsnGenericParams *params, const wchar_t *name, int64_t nameLength )
{
    return sipsnGenericParamsHasParam( params, StringFrom( name, nameLength ).Get() );
}

SipsnGenericParam *sipsnGenericParamsParam( SipsnGenericParams *params, PbString *name )
{
    return pb::Retain( Peek( params, name ) );
}

SipsnGenericParam *sipsnGenericParamsParamCstr( SipsnGenericParams *params, const char *name, int64_t nameLength )
{
    return sipsnGenericParamsParam( params, StringFrom( name, nameLength ).Get() );
}

SipsnGenericParam *sipsnGenericParamsParamWcstr( SipsnGenericParams *params, const wchar_t *name, int64_t nameLength )
{
    return sipsnGenericParamsParam( params, StringFrom( name, nameLength ).Get() );
}

int64_t sipsnGenericParamsParamValueType( SipsnGenericParams *params, PbString *name )
{
    SipsnGenericParam *param = Peek( params, name );
    return param ? sipsnGenericParamValueType( param ) : int64_t{ SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE };
}

int64_t sipsnGenericParamsParamValueTypeCstr( SipsnGenericParams *params, const char *name, int64_t nameLength )
{
    return sipsnGenericParamsParamValueType( params, StringFrom( name, nameLength ).Get() );
}

int64_t sipsnGenericParamsParamValueTypeWcstr( SipsnGenericParams *params, const wchar_t *name, int64_t nameLength )
{
    return sipsnGenericParamsParamValueType( params, StringFrom( name, nameLength ).Get() );
}

PbString *sipsnGenericParamsParamValueNonNormalized( SipsnGenericParams *params, PbString *name )
{
    SipsnGenericParam *param = Peek( params, name );
    return param ? sipsnGenericParamValueNonNormalized( param ) : nullptr;
}

PbString *sipsnGenericParamsParamValueNonNormalizedCstr( SipsnGenericParams *params, const char *name,
                                                         int64_t nameLength )
{
    return sipsnGenericParamsParamValueNonNormalized( params, StringFrom( name, nameLength ).Get() );
}

PbString *sipsnGenericParamsParamValueNonNormalizedWcstr( SipsnGenericParams *params, const wchar_t *name,
                                                          int64_t nameLength )
{
    return sipsnGenericParamsParamValueNonNormalized( params, StringFrom( name, nameLength ).Get() );
}

PbString *sipsnGenericParamsParamValueNormalized( SipsnGenericParams *params, PbString *name )
{
    SipsnGenericParam *param = Peek( params, name );
    return param ? sipsnGenericParamValueNormalized( param ) : nullptr;
}

PbString *sipsnGenericParamsParamValueNormalizedCstr( SipsnGenericParams *params, const char *name, int64_t nameLength )
{
    return sipsnGenericParamsParamValueNormalized( params, StringFrom( name, nameLength ).Get() );
}

PbString *sipsnGenericParamsParamValueNormalizedWcstr( SipsnGenericParams *params, const wchar_t *name,
                                                       int64_t nameLength )
{
    return sipsnGenericParamsParamValueNormalized( params, StringFrom( name, nameLength ).Get() );
}

// ---- Changing --------------------------------------------------------------------------------------

void sipsn::SetParamOwned( SipsnGenericParams **params, SipsnGenericParam *param )
{
    pb::MakeUnique( *params );
    if( !( *params )->params ) ( *params )->params = pb___DictCreateWithCapacity( 2 );
    pb___DictSetOwned( &( *params )->params, pb::Retain( sipsn::PeekName( param ) ), pb::AsObj( param ) );
}

void sipsnGenericParamsSetParam( SipsnGenericParams **params, SipsnGenericParam *param )
{
    PB_ASSERT_SLOT( params );
    PB_ASSERT( param );
    PB_UNSHARE( params );
    sipsn::SetParamOwned( params, pb::Retain( param ) );
}

void sipsnGenericParamsSetParamValue( SipsnGenericParams **params, PbString *name, int64_t type, PbString *value )
{
    pb::Ref param{ sipsnGenericParamCreateWithValue( name, type, value ) };
    sipsnGenericParamsSetParam( params, param.Get() );
}

void sipsnGenericParamsSetParamValueCstr( SipsnGenericParams **params, const char *name, int64_t nameLength,
                                          int64_t type, PbString *value )
{
    sipsnGenericParamsSetParamValue( params, StringFrom( name, nameLength ).Get(), type, value );
}

void sipsnGenericParamsSetParamValueWcstr( SipsnGenericParams **params, const wchar_t *name, int64_t nameLength,
                                           int64_t type, PbString *value )
{
    sipsnGenericParamsSetParamValue( params, StringFrom( name, nameLength ).Get(), type, value );
}

void sipsnGenericParamsDelParam( SipsnGenericParams **params, PbString *name )
{
    PB_ASSERT_SLOT( params );
    pb::Ref normal{ sipsnGenericParamNameNormalize( name ) };
    PB_UNSHARE( params );
    if( !( *params )->params ) return;
    pbDictDelStringKey( &( *params )->params, normal.Get() );
    if( pbDictLength( ( *params )->params ) == 0 ) pb::Del( ( *params )->params );
}

void sipsnGenericParamsDelParamCstr( SipsnGenericParams **params, const char *name, int64_t nameLength )
{
    sipsnGenericParamsDelParam( params, StringFrom( name, nameLength ).Get() );
}

void sipsnGenericParamsDelParamWcstr( SipsnGenericParams **params, const wchar_t *name, int64_t nameLength )
{
    sipsnGenericParamsDelParam( params, StringFrom( name, nameLength ).Get() );
}

// ---- Text form -------------------------------------------------------------------------------------

namespace {

struct Form
{
    template< class Link > SipsnGenericParams *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref    params{ sipsnGenericParamsCreate() };
        const auto noneTyped = []( BasicCursor< Link > & ) { return false; };
        return TryDecodeParams( in, params.Slot(), noneTyped, sipsn::Rest::fails ) ? params.Detach() : nullptr;
    }

    void Write( TextWriter &out, SipsnGenericParams &params ) const
    {
        sipsn::Semicolons separators;
        WriteGenericParams(
            out, &params, []( PbString * ) { return false; }, separators );
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( GenericParams, params, form )
