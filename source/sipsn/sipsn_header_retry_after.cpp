// SipsnHeaderRetryAfter: the Retry-After header field, RFC 3261 section 20.33.
#include "sipsn_header_retry_after.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderRetryAfter
{
    PbObj               obj;
    int64_t             deltaSeconds;
    int64_t             duration;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "deltaSeconds", &SipsnHeaderRetryAfter::deltaSeconds, sipsn::rule::deltaSeconds ),
            sipsn::IntParam( "duration", &SipsnHeaderRetryAfter::duration, sipsn::rule::deltaSeconds ),
            sipsn::OtherParams( &SipsnHeaderRetryAfter::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( RetryAfter, "Retry-After" )

static constexpr sipsn::LastLine< SipsnHeaderRetryAfter, sipsn::Params< SipsnHeaderRetryAfter > > shape{
    { .rest = sipsn::Rest::isIgnored, .ignored = sipsn___SkipComment } };

SIPSN_DEFINE_HEADER( RetryAfter, SIPSN_HEADER_RETRY_AFTER, shape )

SipsnHeaderRetryAfter *sipsnHeaderRetryAfterCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    return sipsn::NewWith( &SipsnHeaderRetryAfter::deltaSeconds, deltaSeconds );
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderRetryAfterDeltaSeconds( SipsnHeaderRetryAfter *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderRetryAfterSetDeltaSeconds( SipsnHeaderRetryAfter **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

int64_t sipsnHeaderRetryAfterDuration( SipsnHeaderRetryAfter *hdr ) { return PB_GET( hdr, duration ); }
bool    sipsnHeaderRetryAfterHasDuration( SipsnHeaderRetryAfter *hdr ) { return PB_HAS( hdr, duration ); }
void    sipsnHeaderRetryAfterSetDuration( SipsnHeaderRetryAfter **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, duration, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}
void sipsnHeaderRetryAfterDelDuration( SipsnHeaderRetryAfter **hdr ) { PB_DEL( hdr, duration ); }

SipsnGenericParams *sipsnHeaderRetryAfterGenericParams( SipsnHeaderRetryAfter *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderRetryAfterSetGenericParams( SipsnHeaderRetryAfter **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
