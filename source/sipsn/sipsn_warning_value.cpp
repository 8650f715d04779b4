// SipsnWarningValue: one warning-value, RFC 3261 section 20.43.
#include "sipsn_warning_value.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnWarningValue
{
    PbObj     obj;
    int64_t   warnCode;
    PbString *warnAgent;
    PbString *warnText;

    using Members =
        pb::Members< &SipsnWarningValue::warnCode, &SipsnWarningValue::warnAgent, &SipsnWarningValue::warnText >;
};

SIPSN_DEFINE_TYPE( SipsnWarningValue, sipsnWarningValue, SIPSN_WARNING_VALUE, wv, wv, sipsn___WarningValueEncode )

// Takes over the references.
static SipsnWarningValue *CreateOwning( int64_t warnCode, PbString *warnAgent, PbString *warnText )
{
    PB_ASSERT( sipsnWarnCodeOk( warnCode ) );
    PB_ASSERT( sipsnWarnAgentOk( warnAgent ) );
    PB_ASSERT( sipsnWarnTextOk( warnText ) );
    SipsnWarningValue *wv = pb::New< SipsnWarningValue >();
    wv->warnCode          = warnCode;
    wv->warnAgent         = warnAgent;
    wv->warnText          = warnText;
    return wv;
}

SipsnWarningValue *sipsnWarningValueCreate( int64_t warnCode, PbString *warnAgent )
{
    PB_ASSERT( sipsnWarnCodeOk( warnCode ) );
    return CreateOwning( warnCode, pb::Retain( warnAgent ), sipsnWarnCodeToString( warnCode ) );
}

SipsnWarningValue *sipsnWarningValueCreateWithWarnText( int64_t warnCode, PbString *warnAgent, PbString *warnText )
{
    return CreateOwning( warnCode, pb::Retain( warnAgent ), pb::Retain( warnText ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnWarningValueWarnCode( SipsnWarningValue *wv ) { return PB_GET( wv, warnCode ); }
void    sipsnWarningValueSetWarnCode( SipsnWarningValue **wv, int64_t warnCode, bool setDefaultText )
{
    PB_SET( wv, warnCode, sipsnWarnCodeOk( warnCode ), warnCode );
    if( setDefaultText ) pb::Set( ( *wv )->warnText, sipsnWarnCodeToString( warnCode ) );
}

PbString *sipsnWarningValueWarnAgent( SipsnWarningValue *wv ) { return PB_GET( wv, warnAgent ); }
void      sipsnWarningValueSetWarnAgent( SipsnWarningValue **wv, PbString *warnAgent )
{
    PB_SET( wv, warnAgent, sipsnWarnAgentOk( warnAgent ), pb::Retain( warnAgent ) );
}

PbString *sipsnWarningValueWarnText( SipsnWarningValue *wv ) { return PB_GET( wv, warnText ); }
void      sipsnWarningValueSetWarnText( SipsnWarningValue **wv, PbString *warnText )
{
    PB_SET( wv, warnText, sipsnWarnTextOk( warnText ), pb::Retain( warnText ) );
}

// ---- Text form -------------------------------------------------------------------------------------

SipsnWarningValue *sipsn___WarningValueTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor in{ chs, length };
    Span   code = in.Take( sipsn___SkipWarnCode );
    if( !code || !in.Take( sipsn___SkipLws ) ) return nullptr;
    Span agent = in.Take( sipsn___SkipWarnAgent );
    if( !agent || !in.Take( sipsn___SkipLws ) ) return nullptr;
    Span text = in.Take( sipsn___SkipWarnText );
    if( !text ) return nullptr;
    return CreateOwning( sipsn___WarnCodeDecode( code.chs, code.length ), agent.ToString(),
                         sipsn::Unquote( text.chs, text.length ) );
}

void sipsn::Write( TextWriter &out, SipsnWarningValue *wv )
{
    out.Int( wv->warnCode );
    out.Char( ' ' );
    out.Text( wv->warnAgent );
    out.Char( ' ' );
    out.Take( sipsn___QuotableStringEncode( wv->warnText ) );
}

PbString *sipsn___WarningValueEncode( SipsnWarningValue *wv )
{
    PB_ASSERT( wv );
    return sipsn::Encode( wv );
}
