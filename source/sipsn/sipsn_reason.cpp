// SipsnReason: one reason-value, RFC 3326 section 2.
#include "sipsn_reason.h"

#include "sipsn_reason_cause.h"
#include "sipsn_reason_protocol.h"
#include "sipsn_reason_text.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Reason )

namespace sipsn::rule {

static constexpr TextRule reasonProtocol{
    .words = "a protocol", .ok = sipsnReasonProtocolOk, .production = sipsn___SkipReasonProtocol };
static constexpr TextRule reasonCause{ .words = "a cause", .ok = sipsnReasonCauseOk, .production = sipsn___SkipDigits };
static constexpr TextRule reasonText{ .words      = "a quoted text",
                                      .ok         = sipsnReasonTextOk,
                                      .production = sipsn___SkipQuotedString,
                                      .decoded    = Unquote,
                                      .encoded    = sipsn___QuotableStringEncode };

} // namespace sipsn::rule

struct SipsnReason
{
    PbObj               obj;
    PbString           *protocol;
    PbString           *cause;
    PbString           *text;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "protocol", &SipsnReason::protocol, sipsn::rule::reasonProtocol ),
            sipsn::TextParam( "cause", &SipsnReason::cause, sipsn::rule::reasonCause ),
            sipsn::TextParam( "text", &SipsnReason::text, sipsn::rule::reasonText ),
            sipsn::OtherParams( &SipsnReason::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnReason, sipsnReason, SIPSN_REASON, reason, reason, sipsn___ReasonEncode )

SipsnReason *sipsnReasonCreate( PbString *reasonProtocol )
{
    PB_ASSERT( sipsnReasonProtocolOk( reasonProtocol ) );
    return sipsn::NewWith( &SipsnReason::protocol, pb::Retain( reasonProtocol ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnReasonProtocol( SipsnReason *reason ) { return PB_GET( reason, protocol ); }
void      sipsnReasonSetProtocol( SipsnReason **reason, PbString *reasonProtocol )
{
    PB_SET( reason, protocol, sipsnReasonProtocolOk( reasonProtocol ), pb::Retain( reasonProtocol ) );
}

PbString *sipsnReasonCause( SipsnReason *reason ) { return PB_GET( reason, cause ); }
bool      sipsnReasonHasCause( SipsnReason *reason ) { return PB_HAS( reason, cause ); }
void      sipsnReasonSetCause( SipsnReason **reason, PbString *reasonCause )
{
    PB_SET( reason, cause, sipsnReasonCauseOk( reasonCause ), pb::Retain( reasonCause ) );
}
void sipsnReasonDelCause( SipsnReason **reason ) { PB_DEL( reason, cause ); }

PbString *sipsnReasonText( SipsnReason *reason ) { return PB_GET( reason, text ); }
bool      sipsnReasonHasText( SipsnReason *reason ) { return PB_HAS( reason, text ); }
void      sipsnReasonSetText( SipsnReason **reason, PbString *reasonText )
{
    PB_SET( reason, text, sipsnReasonTextOk( reasonText ), pb::Retain( reasonText ) );
}
void sipsnReasonDelText( SipsnReason **reason ) { PB_DEL( reason, text ); }

SipsnGenericParams *sipsnReasonGenericParams( SipsnReason *reason ) { return PB_GET( reason, genericParams ); }
void                sipsnReasonSetGenericParams( SipsnReason **reason, SipsnGenericParams *genericParams )
{
    PB_SET( reason, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static constexpr sipsn::Params< SipsnReason > form{};

SIPSN_DEFINE_TEXT( Reason, reason, form )
