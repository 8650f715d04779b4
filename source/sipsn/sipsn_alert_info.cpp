// SipsnAlertInfo: one alert-param of Alert-Info, RFC 3261 section 20.4.
#include "sipsn_alert_info.h"

#include "sipsn_iri.h"
#include "sipsn_skip_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor;

struct SipsnAlertInfo
{
    PbObj               obj;
    PbString           *iri;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnAlertInfo::iri, &SipsnAlertInfo::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnAlertInfo, sipsnAlertInfo, SIPSN_ALERT_INFO, alertInfo, ai, sipsn___AlertInfoEncode )

// Takes over the reference.
static SipsnAlertInfo *CreateOwning( PbString *iri )
{
    SipsnAlertInfo *alertInfo = pb::New< SipsnAlertInfo >();
    alertInfo->iri            = iri;
    alertInfo->genericParams  = sipsnGenericParamsCreate();
    return alertInfo;
}

SipsnAlertInfo *sipsnAlertInfoCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnAlertInfoIri( SipsnAlertInfo *alertInfo ) { return PB_GET( alertInfo, iri ); }
void      sipsnAlertInfoSetIri( SipsnAlertInfo **alertInfo, PbString *iri )
{
    PB_SET( alertInfo, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

SipsnGenericParams *sipsnAlertInfoGenericParams( SipsnAlertInfo *alertInfo )
{
    return PB_GET( alertInfo, genericParams );
}

void sipsnAlertInfoSetGenericParams( SipsnAlertInfo **alertInfo, SipsnGenericParams *genericParams )
{
    PB_SET( alertInfo, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

SipsnAlertInfo *sipsn___AlertInfoTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor    in{ chs, length };
    PbString *iri = sipsn::TryTakeBracketedIri( in );
    if( !iri ) return nullptr;

    pb::Ref    alertInfo{ CreateOwning( iri ) };
    const auto noTyped = []( Cursor & ) { return false; };
    return sipsn::TryDecodeParams( in, &alertInfo->genericParams, noTyped ) ? alertInfo.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnAlertInfo *alertInfo )
{
    WriteNameAddr( out, nullptr, alertInfo->iri );
    ParamWriter{ out, alertInfo->genericParams }.Generic();
}

PbString *sipsn___AlertInfoEncode( SipsnAlertInfo *alertInfo )
{
    PB_ASSERT( alertInfo );
    return sipsn::Encode( alertInfo );
}
