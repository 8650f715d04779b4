// SipsnUuiValue: one uui-value, RFC 7433 section 4.1.
#include "sipsn_uui_value.h"

#include "sipsn_quotable_string.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( UuiValue )

namespace sipsn::rule {

static bool IsUuiData( PbString *uuiData ) { return sipsnTokenOk( uuiData ) || sipsnQuotableStringOk( uuiData ); }

// Quoted data does not decode.
static constexpr TextRule uuiData{ .words = "data", .ok = IsUuiData, .production = sipsn___SkipToken };

} // namespace sipsn::rule

struct SipsnUuiValue
{
    PbObj               obj;
    PbString           *uuiData;
    PbString           *encoding;
    PbString           *purpose;
    PbString           *content;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "uuiData", &SipsnUuiValue::uuiData, sipsn::rule::uuiData ),
            sipsn::TextParam( "encoding", &SipsnUuiValue::encoding, sipsn::rule::token ),
            sipsn::TextParam( "purpose", &SipsnUuiValue::purpose, sipsn::rule::token ),
            sipsn::TextParam( "content", &SipsnUuiValue::content, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnUuiValue::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnUuiValue, sipsnUuiValue, SIPSN_UUI_VALUE, value, value, sipsn___UuiValueEncode )

SipsnUuiValue *sipsnUuiValueCreate( PbString *uuiData )
{
    PB_ASSERT( sipsnTokenOk( uuiData ) || sipsnQuotableStringOk( uuiData ) );
    return sipsn::NewWith( &SipsnUuiValue::uuiData, pb::Retain( uuiData ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnUuiValueUuiData( SipsnUuiValue *value ) { return PB_GET( value, uuiData ); }
void      sipsnUuiValueSetUuiData( SipsnUuiValue **value, PbString *uuiData )
{
    PB_SET( value, uuiData, sipsnTokenOk( uuiData ) || sipsnQuotableStringOk( uuiData ), pb::Retain( uuiData ) );
}

PbString *sipsnUuiValueEncoding( SipsnUuiValue *value ) { return PB_GET( value, encoding ); }
bool      sipsnUuiValueHasEncoding( SipsnUuiValue *value ) { return PB_HAS( value, encoding ); }
void      sipsnUuiValueSetEncoding( SipsnUuiValue **value, PbString *encoding )
{
    PB_SET( value, encoding, sipsnTokenOk( encoding ), pb::Retain( encoding ) );
}
void sipsnUuiValueDelEncoding( SipsnUuiValue **value ) { PB_DEL( value, encoding ); }

PbString *sipsnUuiValuePurpose( SipsnUuiValue *value ) { return PB_GET( value, purpose ); }
bool      sipsnUuiValueHasPurpose( SipsnUuiValue *value ) { return PB_HAS( value, purpose ); }
void      sipsnUuiValueSetPurpose( SipsnUuiValue **value, PbString *purpose )
{
    PB_SET( value, purpose, sipsnTokenOk( purpose ), pb::Retain( purpose ) );
}
void sipsnUuiValueDelPurpose( SipsnUuiValue **value ) { PB_DEL( value, purpose ); }

PbString *sipsnUuiValueContent( SipsnUuiValue *value ) { return PB_GET( value, content ); }
bool      sipsnUuiValueHasContent( SipsnUuiValue *value ) { return PB_HAS( value, content ); }
void      sipsnUuiValueSetContent( SipsnUuiValue **value, PbString *content )
{
    PB_SET( value, content, sipsnTokenOk( content ), pb::Retain( content ) );
}
void sipsnUuiValueDelContent( SipsnUuiValue **value ) { PB_DEL( value, content ); }

SipsnGenericParams *sipsnUuiValueGenericParams( SipsnUuiValue *value ) { return PB_GET( value, genericParams ); }
void                sipsnUuiValueSetGenericParams( SipsnUuiValue **value, SipsnGenericParams *genericParams )
{
    PB_SET( value, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

namespace {

struct Form : sipsn::Params< SipsnUuiValue >
{
    // Data that is not a token would have to be quoted, which the decoder refuses.
    void Write( sipsn::TextWriter &out, SipsnUuiValue &value ) const
    {
        if( sipsnTokenOk( value.uuiData ) ) out.Text( value.uuiData );
        WriteParams( out, value );
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( UuiValue, value, form )

// ---- Start-up and shutdown -------------------------------------------------------------------------

// The file's place in the order of the module. It keeps nothing: the names of the parameters are literals.
void sipsn___UuiValueStartup( void ) {}
void sipsn___UuiValueShutdown( void ) {}
