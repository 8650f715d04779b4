// SipsnErrorInfo: one error-uri of Error-Info, RFC 3261 section 20.18.
#include "sipsn_error_info.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( ErrorInfo )

struct SipsnErrorInfo
{
    PbObj               obj;
    PbString           *iri;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnErrorInfo::iri, sipsn::rule::iri ),
            sipsn::OtherParams( &SipsnErrorInfo::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnErrorInfo, sipsnErrorInfo, SIPSN_ERROR_INFO, errorInfo, ei, sipsn___ErrorInfoEncode )

SipsnErrorInfo *sipsnErrorInfoCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnErrorInfo::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnErrorInfoIri( SipsnErrorInfo *errorInfo ) { return PB_GET( errorInfo, iri ); }
void      sipsnErrorInfoSetIri( SipsnErrorInfo **errorInfo, PbString *iri )
{
    PB_SET( errorInfo, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( ErrorInfo, errorInfo )

SipsnGenericParams *sipsnErrorInfoGenericParams( SipsnErrorInfo *errorInfo )
{
    return PB_GET( errorInfo, genericParams );
}

void sipsnErrorInfoSetGenericParams( SipsnErrorInfo **errorInfo, SipsnGenericParams *genericParams )
{
    PB_SET( errorInfo, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnErrorInfo > form{};

SIPSN_DEFINE_TEXT( ErrorInfo, errorInfo, form )
