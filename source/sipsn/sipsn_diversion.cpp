// SipsnDiversion: one value of a Diversion header field, RFC 5806 section 3.
#include "sipsn_diversion.h"

#include "sipsn_display_name.h"
#include "sipsn_diversion_counter.h"
#include "sipsn_diversion_limit.h"
#include "sipsn_diversion_privacy.h"
#include "sipsn_diversion_reason.h"
#include "sipsn_diversion_screen.h"
#include "sipsn_iri.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor;

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

    using Members = pb::Members< &SipsnDiversion::iri, &SipsnDiversion::displayName, &SipsnDiversion::reason,
                                 &SipsnDiversion::counter, &SipsnDiversion::limit, &SipsnDiversion::privacy,
                                 &SipsnDiversion::screen, &SipsnDiversion::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnDiversion, sipsnDiversion, SIPSN_DIVERSION, diversion, diversion, sipsn___DiversionEncode )

// Takes over the references.
static SipsnDiversion *CreateOwning( PbString *iri, PbString *displayName )
{
    SipsnDiversion *diversion = pb::New< SipsnDiversion >();
    diversion->iri            = iri;
    diversion->displayName    = displayName;
    diversion->genericParams  = sipsnGenericParamsCreate();
    return diversion;
}

SipsnDiversion *sipsnDiversionCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ), nullptr );
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

PbString *sipsnDiversionDisplayName( SipsnDiversion *diversion ) { return PB_GET( diversion, displayName ); }
bool      sipsnDiversionHasDisplayName( SipsnDiversion *diversion ) { return PB_HAS( diversion, displayName ); }
void      sipsnDiversionDelDisplayName( SipsnDiversion **diversion ) { PB_DEL( diversion, displayName ); }
void      sipsnDiversionSetDisplayName( SipsnDiversion **diversion, PbString *displayName )
{
    PB_SET( diversion, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

PbString *sipsnDiversionReason( SipsnDiversion *diversion ) { return PB_GET( diversion, reason ); }
bool      sipsnDiversionHasReason( SipsnDiversion *diversion ) { return PB_HAS( diversion, reason ); }
void      sipsnDiversionDelReason( SipsnDiversion **diversion ) { PB_DEL( diversion, reason ); }
void      sipsnDiversionSetReason( SipsnDiversion **diversion, PbString *diversionReason )
{
    PB_SET( diversion, reason, diversionReason, sipsnDiversionReasonNormalize( diversionReason ) );
}

int64_t sipsnDiversionCounter( SipsnDiversion *diversion ) { return PB_GET( diversion, counter ); }
bool    sipsnDiversionHasCounter( SipsnDiversion *diversion ) { return PB_HAS( diversion, counter ); }
void    sipsnDiversionDelCounter( SipsnDiversion **diversion ) { PB_DEL( diversion, counter ); }
void    sipsnDiversionSetCounter( SipsnDiversion **diversion, int64_t diversionCounter )
{
    PB_SET( diversion, counter, sipsnDiversionCounterOk( diversionCounter ), diversionCounter );
}

int64_t sipsnDiversionLimit( SipsnDiversion *diversion ) { return PB_GET( diversion, limit ); }
bool    sipsnDiversionHasLimit( SipsnDiversion *diversion ) { return PB_HAS( diversion, limit ); }
void    sipsnDiversionDelLimit( SipsnDiversion **diversion ) { PB_DEL( diversion, limit ); }
void    sipsnDiversionSetLimit( SipsnDiversion **diversion, int64_t diversionLimit )
{
    PB_SET( diversion, limit, sipsnDiversionLimitOk( diversionLimit ), diversionLimit );
}

PbString *sipsnDiversionPrivacy( SipsnDiversion *diversion ) { return PB_GET( diversion, privacy ); }
bool      sipsnDiversionHasPrivacy( SipsnDiversion *diversion ) { return PB_HAS( diversion, privacy ); }
void      sipsnDiversionDelPrivacy( SipsnDiversion **diversion ) { PB_DEL( diversion, privacy ); }
void      sipsnDiversionSetPrivacy( SipsnDiversion **diversion, PbString *diversionPrivacy )
{
    PB_SET( diversion, privacy, diversionPrivacy, sipsnDiversionPrivacyNormalize( diversionPrivacy ) );
}

PbString *sipsnDiversionScreen( SipsnDiversion *diversion ) { return PB_GET( diversion, screen ); }
bool      sipsnDiversionHasScreen( SipsnDiversion *diversion ) { return PB_HAS( diversion, screen ); }
void      sipsnDiversionDelScreen( SipsnDiversion **diversion ) { PB_DEL( diversion, screen ); }
void      sipsnDiversionSetScreen( SipsnDiversion **diversion, PbString *diversionScreen )
{
    PB_SET( diversion, screen, diversionScreen, sipsnDiversionScreenNormalize( diversionScreen ) );
}

SipsnGenericParams *sipsnDiversionGenericParams( SipsnDiversion *diversion )
{
    return PB_GET( diversion, genericParams );
}
void sipsnDiversionSetGenericParams( SipsnDiversion **diversion, SipsnGenericParams *genericParams )
{
    PB_SET( diversion, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

// The content of a token or a quoted string, as its member stores it.
template< sipsn::FromChars decode, PbString *normalize( PbString * ) >
static PbString *NormalFromChars( const PbChar *chs, int64_t length )
{
    pb::Ref content{ decode( chs, length ) };
    return content ? normalize( content.Get() ) : nullptr;
}

static bool TakeTypedParam( Cursor &in, SipsnDiversion *diversion )
{
    return sipsn::TakeText( in, "reason", sipsn___SkipDiversionReason, diversion->reason,
                            NormalFromChars< sipsn___DiversionReasonTryDecode, sipsnDiversionReasonNormalize > ) ||
           sipsn::TakeInt( in, "counter", sipsn___SkipDiversionCounter, diversion->counter,
                           sipsn___DiversionCounterTryDecode ) ||
           sipsn::TakeInt( in, "limit", sipsn___SkipDiversionLimit, diversion->limit,
                           sipsn___DiversionLimitTryDecode ) ||
           sipsn::TakeText( in, "privacy", sipsn___SkipDiversionPrivacy, diversion->privacy,
                            NormalFromChars< sipsn___DiversionPrivacyTryDecode, sipsnDiversionPrivacyNormalize > ) ||
           sipsn::TakeText( in, "screen", sipsn___SkipDiversionScreen, diversion->screen,
                            NormalFromChars< sipsn___DiversionScreenTryDecode, sipsnDiversionScreenNormalize > );
}

SipsnDiversion *sipsn___DiversionTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor          in{ chs, length };
    sipsn::NameAddr address;
    if( !sipsn::TryTakeNameAddr( in, &address ) ) return nullptr;

    pb::Ref    diversion{ CreateOwning( address.iri.Detach(), address.displayName.Detach() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, diversion.Get() ); };
    return sipsn::TryDecodeParams( in, &diversion->genericParams, takeTyped ) ? diversion.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnDiversion *diversion )
{
    WriteNameAddr( out, diversion->displayName, diversion->iri );
    ParamWriter params{ out, diversion->genericParams };
    params.Text( "reason", diversion->reason );
    params.Int( "counter", diversion->counter );
    params.Int( "limit", diversion->limit );
    params.Text( "privacy", diversion->privacy );
    params.Text( "screen", diversion->screen );
    params.Generic();
}

PbString *sipsn___DiversionEncode( SipsnDiversion *diversion )
{
    PB_ASSERT( diversion );
    return sipsn::Encode( diversion );
}
