// SipsnWarningValue: one warning-value, RFC 3261 section 20.43.
#include "sipsn_warning_value.h"

#include "sipsn_rules.h"
#include "sipsn_value_internal.h"
#include "sipsn_warn_agent.h"
#include "sipsn_warn_code.h"
#include "sipsn_warn_text.h"

SIPSN_DECLARE_TEXT( WarningValue )

using sipsn::BasicCursor;

namespace sipsn::rule {

static constexpr IntRule  warnCode{ .words      = "a warning code",
                                    .ok         = sipsnWarnCodeOk,
                                    .lowest     = 0,
                                    .highest    = 999,
                                    .production = sipsn___SkipWarnCode,
                                    .decoded    = sipsn___WarnCodeDecode };
static constexpr TextRule warnAgent{
    .words = "a host or a name", .ok = sipsnWarnAgentOk, .production = sipsn___SkipWarnAgent };
static constexpr TextRule warnText{ .words      = "a quoted text",
                                    .ok         = sipsnWarnTextOk,
                                    .production = sipsn___SkipWarnText,
                                    .decoded    = Unquote,
                                    .encoded    = sipsn___QuotableStringEncode };

} // namespace sipsn::rule

struct SipsnWarningValue
{
    PbObj     obj;
    int64_t   warnCode;
    PbString *warnAgent;
    PbString *warnText;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "warnCode", &SipsnWarningValue::warnCode, sipsn::rule::warnCode ),
            sipsn::Text( "warnAgent", &SipsnWarningValue::warnAgent, sipsn::rule::warnAgent ),
            sipsn::Text( "warnText", &SipsnWarningValue::warnText, sipsn::rule::warnText ),
        };
    }
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

namespace {

// What follows the text is not looked at.
struct Form : sipsn::Words< SipsnWarningValue >
{
    template< class Link > SipsnWarningValue *TryDecode( BasicCursor< Link > &in ) const
    {
        const int64_t warnCode = TryTake( in, sipsn::rule::warnCode );
        if( warnCode < 0 || !in.Take( sipsn___SkipLws ) ) return nullptr;
        pb::Ref warnAgent{ TryTake( in, sipsn::rule::warnAgent ) };
        if( !warnAgent || !in.Take( sipsn___SkipLws ) ) return nullptr;
        PbString *warnText = TryTake( in, sipsn::rule::warnText );
        return warnText ? CreateOwning( warnCode, warnAgent.Detach(), warnText ) : nullptr;
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( WarningValue, wv, form )
