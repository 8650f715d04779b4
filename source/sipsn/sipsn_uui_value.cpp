// SipsnUuiValue: one uui-value, RFC 7433 section 4.1.
#include "sipsn_uui_value.h"

#include "sipsn_quotable_string.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnUuiValue
{
    PbObj               obj;
    PbString           *uuiData;
    PbString           *encoding;
    PbString           *purpose;
    PbString           *content;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnUuiValue::uuiData, &SipsnUuiValue::encoding, &SipsnUuiValue::purpose,
                                 &SipsnUuiValue::content, &SipsnUuiValue::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnUuiValue, sipsnUuiValue, SIPSN_UUI_VALUE, value, value, sipsn___UuiValueEncode )

// Takes over the reference.
static SipsnUuiValue *CreateOwning( PbString *uuiData )
{
    SipsnUuiValue *value = pb::New< SipsnUuiValue >();
    value->uuiData       = uuiData;
    value->genericParams = sipsnGenericParamsCreate();
    return value;
}

SipsnUuiValue *sipsnUuiValueCreate( PbString *uuiData )
{
    PB_ASSERT( sipsnTokenOk( uuiData ) || sipsnQuotableStringOk( uuiData ) );
    return CreateOwning( pb::Retain( uuiData ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnUuiValueUuiData( SipsnUuiValue *value ) { return PB_GET( value, uuiData ); }
void      sipsnUuiValueSetUuiData( SipsnUuiValue **value, PbString *uuiData )
{
    PB_SET( value, uuiData, sipsnTokenOk( uuiData ) || sipsnQuotableStringOk( uuiData ), pb::Retain( uuiData ) );
}

PbString *sipsnUuiValueEncoding( SipsnUuiValue *value ) { return PB_GET( value, encoding ); }
bool      sipsnUuiValueHasEncoding( SipsnUuiValue *value ) { return PB_HAS( value, encoding ); }
void      sipsnUuiValueDelEncoding( SipsnUuiValue **value ) { PB_DEL( value, encoding ); }
void      sipsnUuiValueSetEncoding( SipsnUuiValue **value, PbString *encoding )
{
    PB_SET( value, encoding, sipsnTokenOk( encoding ), pb::Retain( encoding ) );
}

PbString *sipsnUuiValuePurpose( SipsnUuiValue *value ) { return PB_GET( value, purpose ); }
bool      sipsnUuiValueHasPurpose( SipsnUuiValue *value ) { return PB_HAS( value, purpose ); }
void      sipsnUuiValueDelPurpose( SipsnUuiValue **value ) { PB_DEL( value, purpose ); }
void      sipsnUuiValueSetPurpose( SipsnUuiValue **value, PbString *purpose )
{
    PB_SET( value, purpose, sipsnTokenOk( purpose ), pb::Retain( purpose ) );
}

PbString *sipsnUuiValueContent( SipsnUuiValue *value ) { return PB_GET( value, content ); }
bool      sipsnUuiValueHasContent( SipsnUuiValue *value ) { return PB_HAS( value, content ); }
void      sipsnUuiValueDelContent( SipsnUuiValue **value ) { PB_DEL( value, content ); }
void      sipsnUuiValueSetContent( SipsnUuiValue **value, PbString *content )
{
    PB_SET( value, content, sipsnTokenOk( content ), pb::Retain( content ) );
}

SipsnGenericParams *sipsnUuiValueGenericParams( SipsnUuiValue *value ) { return PB_GET( value, genericParams ); }
void                sipsnUuiValueSetGenericParams( SipsnUuiValue **value, SipsnGenericParams *genericParams )
{
    PB_SET( value, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnUuiValue *value )
{
    return sipsn::TakeText( in, "encoding", sipsn___SkipToken, value->encoding ) ||
           sipsn::TakeText( in, "purpose", sipsn___SkipToken, value->purpose ) ||
           sipsn::TakeText( in, "content", sipsn___SkipToken, value->content );
}

SipsnUuiValue *sipsn___UuiValueTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor in{ chs, length };
    Span   uuiData = in.Take( sipsn___SkipToken ); // a quoted string is refused
    if( !uuiData ) return nullptr;

    pb::Ref    value{ CreateOwning( uuiData.ToString() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, value.Get() ); };
    return sipsn::TryDecodeParams( in, &value->genericParams, takeTyped ) ? value.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnUuiValue *value )
{
    // Other data would have to be quoted, which the decoder refuses.
    if( sipsnTokenOk( value->uuiData ) ) out.Text( value->uuiData );
    ParamWriter params{ out, value->genericParams };
    params.Text( "encoding", value->encoding );
    params.Text( "purpose", value->purpose );
    params.Text( "content", value->content );
    params.Generic();
}

PbString *sipsn___UuiValueEncode( SipsnUuiValue *value )
{
    PB_ASSERT( value );
    return sipsn::Encode( value );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

// The file's place in the order of the module. It keeps nothing: the names of the parameters are literals.
void sipsn___UuiValueStartup( void ) {}
void sipsn___UuiValueShutdown( void ) {}
