// SipsnHeaderSubscriptionState: the Subscription-State header field, RFC 6665 section 8.2.3.
#include "sipsn_header_subscription_state.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule substateValue{ .words      = "a subscription state",
                                         .ok         = sipsnSubstateValueOk,
                                         .production = sipsn___SkipSubstateValue,
                                         .decoded    = LowerFromChars,
                                         .normal     = ToLower };
static constexpr TextRule eventReasonValue{ .words      = "a reason",
                                            .ok         = sipsnEventReasonValueOk,
                                            .production = sipsn___SkipEventReasonValue,
                                            .decoded    = LowerFromChars,
                                            .normal     = ToLower };

} // namespace sipsn::rule

struct SipsnHeaderSubscriptionState
{
    PbObj               obj;
    PbString           *substateValue;
    PbString           *reason;
    int64_t             expires;
    int64_t             retryAfter;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "substateValue", &SipsnHeaderSubscriptionState::substateValue, sipsn::rule::substateValue ),
            sipsn::TextParam( "reason", &SipsnHeaderSubscriptionState::reason, sipsn::rule::eventReasonValue ),
            sipsn::IntParam( "expires", &SipsnHeaderSubscriptionState::expires, sipsn::rule::deltaSeconds ),
            sipsn::IntParam( "retry-after", &SipsnHeaderSubscriptionState::retryAfter, sipsn::rule::deltaSeconds,
                             "retryAfter" ),
            sipsn::OtherParams( &SipsnHeaderSubscriptionState::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( SubscriptionState, "Subscription-State" )

static constexpr sipsn::LastLine< SipsnHeaderSubscriptionState, sipsn::Params< SipsnHeaderSubscriptionState > > shape{};

SIPSN_DEFINE_HEADER( SubscriptionState, SIPSN_HEADER_SUBSCRIPTION_STATE, shape )

SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateCreate( PbString *substateValue )
{
    PB_ASSERT( sipsnSubstateValueOk( substateValue ) );
    return sipsn::NewWith( &SipsnHeaderSubscriptionState::substateValue, sipsnSubstateValueNormalize( substateValue ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderSubscriptionStateSubstateValue( SipsnHeaderSubscriptionState *hdr )
{
    return PB_GET( hdr, substateValue );
}

void sipsnHeaderSubscriptionStateSetSubstateValue( SipsnHeaderSubscriptionState **hdr, PbString *substateValue )
{
    PB_SET( hdr, substateValue, sipsnSubstateValueOk( substateValue ), sipsnSubstateValueNormalize( substateValue ) );
}

PbString *sipsnHeaderSubscriptionStateReason( SipsnHeaderSubscriptionState *hdr ) { return PB_GET( hdr, reason ); }
bool      sipsnHeaderSubscriptionStateHasReason( SipsnHeaderSubscriptionState *hdr ) { return PB_HAS( hdr, reason ); }
void      sipsnHeaderSubscriptionStateSetReason( SipsnHeaderSubscriptionState **hdr, PbString *eventReasonValue )
{
    PB_SET( hdr, reason, sipsnEventReasonValueOk( eventReasonValue ), sipsnEventReasonValueNormalize( eventReasonValue ) );
}
void sipsnHeaderSubscriptionStateDelReason( SipsnHeaderSubscriptionState **hdr ) { PB_DEL( hdr, reason ); }

int64_t sipsnHeaderSubscriptionStateExpires( SipsnHeaderSubscriptionState *hdr ) { return PB_GET( hdr, expires ); }
bool    sipsnHeaderSubscriptionStateHasExpires( SipsnHeaderSubscriptionState *hdr ) { return PB_HAS( hdr, expires ); }
void    sipsnHeaderSubscriptionStateSetExpires( SipsnHeaderSubscriptionState **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, expires, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}
void sipsnHeaderSubscriptionStateDelExpires( SipsnHeaderSubscriptionState **hdr ) { PB_DEL( hdr, expires ); }

int64_t sipsnHeaderSubscriptionStateRetryAfter( SipsnHeaderSubscriptionState *hdr )
{
    return PB_GET( hdr, retryAfter );
}

bool sipsnHeaderSubscriptionStateHasRetryAfter( SipsnHeaderSubscriptionState *hdr )
{
    return PB_HAS( hdr, retryAfter );
}

void sipsnHeaderSubscriptionStateSetRetryAfter( SipsnHeaderSubscriptionState **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, retryAfter, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}
void sipsnHeaderSubscriptionStateDelRetryAfter( SipsnHeaderSubscriptionState **hdr ) { PB_DEL( hdr, retryAfter ); }

SipsnGenericParams *sipsnHeaderSubscriptionStateGenericParams( SipsnHeaderSubscriptionState *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderSubscriptionStateSetGenericParams( SipsnHeaderSubscriptionState **hdr,
                                                   SipsnGenericParams            *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
