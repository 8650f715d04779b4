// SipsnHeaderRetryAfter: the Retry-After header field, RFC 3261 section 20.33.
#include "sipsn_header_retry_after.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

using sipsn::Cursor;

struct SipsnHeaderRetryAfter
{
    PbObj               obj;
    int64_t             deltaSeconds;
    int64_t             duration;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderRetryAfter::deltaSeconds, &SipsnHeaderRetryAfter::duration,
                                 &SipsnHeaderRetryAfter::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderRetryAfter, sipsn___PbsRetryAfter, "Retry-After" )

static SipsnHeaderRetryAfter *TryDecode( PbString *line );
static PbString              *EncodeLine( SipsnHeaderRetryAfter *hdr );

static constexpr sipsn::Single< SipsnHeaderRetryAfter > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderRetryAfter, sipsnHeaderRetryAfter, SIPSN_HEADER_RETRY_AFTER, sipsn___PbsRetryAfter,
                     shape )

SipsnHeaderRetryAfter *sipsnHeaderRetryAfterCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    SipsnHeaderRetryAfter *hdr = pb::New< SipsnHeaderRetryAfter >();
    hdr->deltaSeconds          = deltaSeconds;
    hdr->genericParams         = sipsnGenericParamsCreate();
    return hdr;
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderRetryAfterDeltaSeconds( SipsnHeaderRetryAfter *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderRetryAfterSetDeltaSeconds( SipsnHeaderRetryAfter **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

int64_t sipsnHeaderRetryAfterDuration( SipsnHeaderRetryAfter *hdr ) { return PB_GET( hdr, duration ); }
bool    sipsnHeaderRetryAfterHasDuration( SipsnHeaderRetryAfter *hdr ) { return PB_HAS( hdr, duration ); }
void    sipsnHeaderRetryAfterDelDuration( SipsnHeaderRetryAfter **hdr ) { PB_DEL( hdr, duration ); }
void    sipsnHeaderRetryAfterSetDuration( SipsnHeaderRetryAfter **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, duration, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

SipsnGenericParams *sipsnHeaderRetryAfterGenericParams( SipsnHeaderRetryAfter *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderRetryAfterSetGenericParams( SipsnHeaderRetryAfter **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static SipsnHeaderRetryAfter *TryDecode( PbString *line )
{
    Cursor        in{ line->chs, line->length };
    const int64_t deltaSeconds = sipsn::TakeDecimal( in );
    if( !sipsnDeltaSecondsOk( deltaSeconds ) ) return nullptr;
    in.Take( sipsn___SkipLws );
    in.Take( sipsn___SkipComment );

    pb::Ref    hdr{ sipsnHeaderRetryAfterCreate( deltaSeconds ) };
    const auto takeTyped = [ & ]( Cursor &at ) {
        return sipsn::TakeInt( at, "duration", sipsn___SkipDeltaSeconds, hdr->duration, sipsn___DeltaSecondsTryDecode );
    };
    const bool good = sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped, sipsn::Rest::isIgnored );
    return good ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderRetryAfter *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Int( hdr->deltaSeconds );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Int( "duration", hdr->duration );
        params.Generic();
    } );
}
