// SipsnAlertInfo: one alert-param of Alert-Info, RFC 3261 section 20.4.
#include "sipsn_alert_info.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( AlertInfo )

struct SipsnAlertInfo
{
    PbObj               obj;
    PbString           *iri;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnAlertInfo::iri, sipsn::rule::iri ),
            sipsn::OtherParams( &SipsnAlertInfo::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnAlertInfo, sipsnAlertInfo, SIPSN_ALERT_INFO, alertInfo, ai, sipsn___AlertInfoEncode )

SipsnAlertInfo *sipsnAlertInfoCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnAlertInfo::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnAlertInfoIri( SipsnAlertInfo *alertInfo ) { return PB_GET( alertInfo, iri ); }
void      sipsnAlertInfoSetIri( SipsnAlertInfo **alertInfo, PbString *iri )
{
    PB_SET( alertInfo, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( AlertInfo, alertInfo )

SipsnGenericParams *sipsnAlertInfoGenericParams( SipsnAlertInfo *alertInfo )
{
    return PB_GET( alertInfo, genericParams );
}

void sipsnAlertInfoSetGenericParams( SipsnAlertInfo **alertInfo, SipsnGenericParams *genericParams )
{
    PB_SET( alertInfo, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnAlertInfo > form{};

SIPSN_DEFINE_TEXT( AlertInfo, alertInfo, form )
