// SipsnDiversion: one value of a Diversion header field, RFC 5806 section 3.
#include "sipsn_diversion.h"

#include "sipsn_diversion_counter.h"
#include "sipsn_diversion_limit.h"
#include "sipsn_diversion_privacy.h"
#include "sipsn_diversion_reason.h"
#include "sipsn_diversion_screen.h"
#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Diversion )

namespace sipsn::rule {

// The content of a token or a quoted string, as its member stores it.
template< FromChars decode, PbString *normalize( PbString * ) >
static PbString *NormalFromChars( const PbChar *chs, int64_t length )
{
    pb::Ref content{ decode( chs, length ) };
    return content ? normalize( content.Get() ) : nullptr;
}

// Content that is not a token is kept as well.
static constexpr bool IsAnyText( PbString * ) { return true; }

static constexpr TextRule diversionReason{
    .words      = "a reason",
    .ok         = IsAnyText,
    .production = sipsn___SkipDiversionReason,
    .decoded    = NormalFromChars< sipsn___DiversionReasonTryDecode, sipsnDiversionReasonNormalize >,
    .normal     = sipsnDiversionReasonNormalize };
static constexpr TextRule diversionPrivacy{
    .words      = "a privacy",
    .ok         = IsAnyText,
    .production = sipsn___SkipDiversionPrivacy,
    .decoded    = NormalFromChars< sipsn___DiversionPrivacyTryDecode, sipsnDiversionPrivacyNormalize >,
    .normal     = sipsnDiversionPrivacyNormalize };
static constexpr TextRule diversionScreen{
    .words      = "a screen",
    .ok         = IsAnyText,
    .production = sipsn___SkipDiversionScreen,
    .decoded    = NormalFromChars< sipsn___DiversionScreenTryDecode, sipsnDiversionScreenNormalize >,
    .normal     = sipsnDiversionScreenNormalize };
static constexpr IntRule diversionCounter{ .words      = "a counter",
                                           .ok         = sipsnDiversionCounterOk,
                                           .lowest     = 0,
                                           .highest    = 99,
                                           .production = sipsn___SkipDiversionCounter,
                                           .decoded    = DecimalFromChars };
static constexpr IntRule diversionLimit{ .words      = "a limit",
                                         .ok         = sipsnDiversionLimitOk,
                                         .lowest     = 0,
                                         .highest    = 99,
                                         .production = sipsn___SkipDiversionLimit,
                                         .decoded    = DecimalFromChars };

} // namespace sipsn::rule

struct SipsnDiversion
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *reason;
    int64_t             counter;
    int64_t             limit;
    PbString           *privacy;
    PbString           *screen;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnDiversion::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnDiversion::displayName, sipsn::rule::displayName ),
            sipsn::TextParam( "reason", &SipsnDiversion::reason, sipsn::rule::diversionReason ),
            sipsn::IntParam( "counter", &SipsnDiversion::counter, sipsn::rule::diversionCounter ),
            sipsn::IntParam( "limit", &SipsnDiversion::limit, sipsn::rule::diversionLimit ),
            sipsn::TextParam( "privacy", &SipsnDiversion::privacy, sipsn::rule::diversionPrivacy ),
            sipsn::TextParam( "screen", &SipsnDiversion::screen, sipsn::rule::diversionScreen ),
            sipsn::OtherParams( &SipsnDiversion::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnDiversion, sipsnDiversion, SIPSN_DIVERSION, diversion, diversion, sipsn___DiversionEncode )

SipsnDiversion *sipsnDiversionCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnDiversion::iri, pb::Retain( iri ) );
}

SipsnDiversion *sipsnDiversionCreateWithDisplayName( PbString *iri, PbString *displayName )
{
    pb::Ref diversion{ sipsnDiversionCreate( iri ) };
    sipsnDiversionSetDisplayName( diversion.Slot(), displayName );
    return diversion.Detach();
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnDiversionIri( SipsnDiversion *diversion ) { return PB_GET( diversion, iri ); }
void      sipsnDiversionSetIri( SipsnDiversion **diversion, PbString *iri )
{
    PB_SET( diversion, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( Diversion, diversion )

PbString *sipsnDiversionDisplayName( SipsnDiversion *diversion ) { return PB_GET( diversion, displayName ); }
bool      sipsnDiversionHasDisplayName( SipsnDiversion *diversion ) { return PB_HAS( diversion, displayName ); }
void      sipsnDiversionSetDisplayName( SipsnDiversion **diversion, PbString *displayName )
{
    PB_SET( diversion, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnDiversionDelDisplayName( SipsnDiversion **diversion ) { PB_DEL( diversion, displayName ); }

PbString *sipsnDiversionReason( SipsnDiversion *diversion ) { return PB_GET( diversion, reason ); }
bool      sipsnDiversionHasReason( SipsnDiversion *diversion ) { return PB_HAS( diversion, reason ); }
void      sipsnDiversionSetReason( SipsnDiversion **diversion, PbString *diversionReason )
{
    PB_SET( diversion, reason, diversionReason, sipsnDiversionReasonNormalize( diversionReason ) );
}
void sipsnDiversionDelReason( SipsnDiversion **diversion ) { PB_DEL( diversion, reason ); }

int64_t sipsnDiversionCounter( SipsnDiversion *diversion ) { return PB_GET( diversion, counter ); }
bool    sipsnDiversionHasCounter( SipsnDiversion *diversion ) { return PB_HAS( diversion, counter ); }
void    sipsnDiversionSetCounter( SipsnDiversion **diversion, int64_t diversionCounter )
{
    PB_SET( diversion, counter, sipsnDiversionCounterOk( diversionCounter ), diversionCounter );
}
void sipsnDiversionDelCounter( SipsnDiversion **diversion ) { PB_DEL( diversion, counter ); }

int64_t sipsnDiversionLimit( SipsnDiversion *diversion ) { return PB_GET( diversion, limit ); }
bool    sipsnDiversionHasLimit( SipsnDiversion *diversion ) { return PB_HAS( diversion, limit ); }
void    sipsnDiversionSetLimit( SipsnDiversion **diversion, int64_t diversionLimit )
{
    PB_SET( diversion, limit, sipsnDiversionLimitOk( diversionLimit ), diversionLimit );
}
void sipsnDiversionDelLimit( SipsnDiversion **diversion ) { PB_DEL( diversion, limit ); }

PbString *sipsnDiversionPrivacy( SipsnDiversion *diversion ) { return PB_GET( diversion, privacy ); }
bool      sipsnDiversionHasPrivacy( SipsnDiversion *diversion ) { return PB_HAS( diversion, privacy ); }
void      sipsnDiversionSetPrivacy( SipsnDiversion **diversion, PbString *diversionPrivacy )
{
    PB_SET( diversion, privacy, diversionPrivacy, sipsnDiversionPrivacyNormalize( diversionPrivacy ) );
}
void sipsnDiversionDelPrivacy( SipsnDiversion **diversion ) { PB_DEL( diversion, privacy ); }

PbString *sipsnDiversionScreen( SipsnDiversion *diversion ) { return PB_GET( diversion, screen ); }
bool      sipsnDiversionHasScreen( SipsnDiversion *diversion ) { return PB_HAS( diversion, screen ); }
void      sipsnDiversionSetScreen( SipsnDiversion **diversion, PbString *diversionScreen )
{
    PB_SET( diversion, screen, diversionScreen, sipsnDiversionScreenNormalize( diversionScreen ) );
}
void sipsnDiversionDelScreen( SipsnDiversion **diversion ) { PB_DEL( diversion, screen ); }

SipsnGenericParams *sipsnDiversionGenericParams( SipsnDiversion *diversion )
{
    return PB_GET( diversion, genericParams );
}
void sipsnDiversionSetGenericParams( SipsnDiversion **diversion, SipsnGenericParams *genericParams )
{
    PB_SET( diversion, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnDiversion > form{};

SIPSN_DEFINE_TEXT( Diversion, diversion, form )
