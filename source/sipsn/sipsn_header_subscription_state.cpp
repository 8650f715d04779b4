// SipsnHeaderSubscriptionState: the Subscription-State header field, RFC 6665 section 8.2.3.
#include "sipsn_header_subscription_state.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnHeaderSubscriptionState
{
    PbObj               obj;
    PbString           *substateValue;
    PbString           *reason;
    int64_t             expires;
    int64_t             retryAfter;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderSubscriptionState::substateValue, &SipsnHeaderSubscriptionState::reason,
                                 &SipsnHeaderSubscriptionState::expires, &SipsnHeaderSubscriptionState::retryAfter,
                                 &SipsnHeaderSubscriptionState::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderSubscriptionState, sipsn___PbsSubscriptionState, "Subscription-State" )

static SipsnHeaderSubscriptionState *TryDecode( PbString *line );
static PbString                     *EncodeLine( SipsnHeaderSubscriptionState *hdr );

static constexpr sipsn::Single< SipsnHeaderSubscriptionState > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderSubscriptionState, sipsnHeaderSubscriptionState, SIPSN_HEADER_SUBSCRIPTION_STATE,
                     sipsn___PbsSubscriptionState, shape )

// Takes over the reference.
static SipsnHeaderSubscriptionState *CreateOwning( PbString *substateValue )
{
    SipsnHeaderSubscriptionState *hdr = pb::New< SipsnHeaderSubscriptionState >();
    hdr->substateValue                = substateValue;
    hdr->genericParams                = sipsnGenericParamsCreate();
    return hdr;
}

SipsnHeaderSubscriptionState *sipsnHeaderSubscriptionStateCreate( PbString *substateValue )
{
    PB_ASSERT( sipsnSubstateValueOk( substateValue ) );
    return CreateOwning( sipsnSubstateValueNormalize( substateValue ) );
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
void      sipsnHeaderSubscriptionStateDelReason( SipsnHeaderSubscriptionState **hdr ) { PB_DEL( hdr, reason ); }
void      sipsnHeaderSubscriptionStateSetReason( SipsnHeaderSubscriptionState **hdr, PbString *eventReasonValue )
{
    PB_SET( hdr, reason, sipsnEventReasonValueOk( eventReasonValue ), sipsnEventReasonValueNormalize( eventReasonValue ) );
}

int64_t sipsnHeaderSubscriptionStateExpires( SipsnHeaderSubscriptionState *hdr ) { return PB_GET( hdr, expires ); }
bool    sipsnHeaderSubscriptionStateHasExpires( SipsnHeaderSubscriptionState *hdr ) { return PB_HAS( hdr, expires ); }
void    sipsnHeaderSubscriptionStateDelExpires( SipsnHeaderSubscriptionState **hdr ) { PB_DEL( hdr, expires ); }
void    sipsnHeaderSubscriptionStateSetExpires( SipsnHeaderSubscriptionState **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, expires, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

int64_t sipsnHeaderSubscriptionStateRetryAfter( SipsnHeaderSubscriptionState *hdr )
{
    return PB_GET( hdr, retryAfter );
}

bool sipsnHeaderSubscriptionStateHasRetryAfter( SipsnHeaderSubscriptionState *hdr )
{
    return PB_HAS( hdr, retryAfter );
}

void sipsnHeaderSubscriptionStateDelRetryAfter( SipsnHeaderSubscriptionState **hdr ) { PB_DEL( hdr, retryAfter ); }
void sipsnHeaderSubscriptionStateSetRetryAfter( SipsnHeaderSubscriptionState **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, retryAfter, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

SipsnGenericParams *sipsnHeaderSubscriptionStateGenericParams( SipsnHeaderSubscriptionState *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderSubscriptionStateSetGenericParams( SipsnHeaderSubscriptionState **hdr,
                                                   SipsnGenericParams            *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnHeaderSubscriptionState *hdr )
{
    return sipsn::TakeText( in, "reason", sipsn___SkipEventReasonValue, hdr->reason, sipsn::LowerFromChars ) ||
           sipsn::TakeInt( in, "expires", sipsn___SkipDeltaSeconds, hdr->expires, sipsn___DeltaSecondsTryDecode ) ||
           sipsn::TakeInt( in, "retry-after", sipsn___SkipDeltaSeconds, hdr->retryAfter,
                           sipsn___DeltaSecondsTryDecode );
}

static SipsnHeaderSubscriptionState *TryDecode( PbString *line )
{
    Cursor     in{ line->chs, line->length };
    const Span substateValue = in.Take( sipsn___SkipSubstateValue );
    if( !substateValue ) return nullptr;

    pb::Ref    hdr{ CreateOwning( sipsn::LowerFromChars( substateValue.chs, substateValue.length ) ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, hdr.Get() ); };
    return sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped ) ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderSubscriptionState *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Text( hdr->substateValue );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Text( "reason", hdr->reason );
        params.Int( "expires", hdr->expires );
        params.Int( "retry-after", hdr->retryAfter );
        params.Generic();
    } );
}
