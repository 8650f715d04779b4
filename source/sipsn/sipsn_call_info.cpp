// SipsnCallInfo: one info of Call-Info, RFC 3261 section 20.9.
#include "sipsn_call_info.h"

#include "sipsn_purpose.h"
#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( CallInfo )

namespace sipsn::rule {

static constexpr TextRule purpose{ .words      = "a purpose",
                                   .ok         = sipsnPurposeOk,
                                   .production = sipsn___SkipPurpose,
                                   .decoded    = LowerFromChars,
                                   .normal     = ToLower };

} // namespace sipsn::rule

struct SipsnCallInfo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *purpose;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnCallInfo::iri, sipsn::rule::iri ),
            sipsn::TextParam( "purpose", &SipsnCallInfo::purpose, sipsn::rule::purpose ),
            sipsn::OtherParams( &SipsnCallInfo::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnCallInfo, sipsnCallInfo, SIPSN_CALL_INFO, callInfo, ci, sipsn___CallInfoEncode )

SipsnCallInfo *sipsnCallInfoCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnCallInfo::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnCallInfoIri( SipsnCallInfo *callInfo ) { return PB_GET( callInfo, iri ); }
void      sipsnCallInfoSetIri( SipsnCallInfo **callInfo, PbString *iri )
{
    PB_SET( callInfo, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( CallInfo, callInfo )

PbString *sipsnCallInfoPurpose( SipsnCallInfo *callInfo ) { return PB_GET( callInfo, purpose ); }
bool      sipsnCallInfoHasPurpose( SipsnCallInfo *callInfo ) { return PB_HAS( callInfo, purpose ); }
void      sipsnCallInfoSetPurpose( SipsnCallInfo **callInfo, PbString *purpose )
{
    PB_SET( callInfo, purpose, purpose, sipsnPurposeNormalize( purpose ) );
}
void sipsnCallInfoDelPurpose( SipsnCallInfo **callInfo ) { PB_DEL( callInfo, purpose ); }

SipsnGenericParams *sipsnCallInfoGenericParams( SipsnCallInfo *callInfo ) { return PB_GET( callInfo, genericParams ); }
void                sipsnCallInfoSetGenericParams( SipsnCallInfo **callInfo, SipsnGenericParams *genericParams )
{
    PB_SET( callInfo, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Address< SipsnCallInfo > form{};

SIPSN_DEFINE_TEXT( CallInfo, callInfo, form )
