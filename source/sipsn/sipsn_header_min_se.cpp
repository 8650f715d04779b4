// SipsnHeaderMinSe: the Min-SE header field, RFC 4028 section 5.
#include "sipsn_header_min_se.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderMinSe
{
    PbObj               obj;
    int64_t             deltaSeconds;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "deltaSeconds", &SipsnHeaderMinSe::deltaSeconds, sipsn::rule::deltaSeconds ),
            sipsn::OtherParams( &SipsnHeaderMinSe::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( MinSe, "Min-Se" )

static constexpr sipsn::LastLine< SipsnHeaderMinSe, sipsn::Params< SipsnHeaderMinSe > > shape{
    { .rest = sipsn::Rest::isIgnored } };

SIPSN_DEFINE_HEADER( MinSe, SIPSN_HEADER_MIN_SE, shape )

SipsnHeaderMinSe *sipsnHeaderMinSeCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    return sipsn::NewWith( &SipsnHeaderMinSe::deltaSeconds, deltaSeconds );
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderMinSeDeltaSeconds( SipsnHeaderMinSe *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderMinSeSetDeltaSeconds( SipsnHeaderMinSe **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

SipsnGenericParams *sipsnHeaderMinSeGenericParams( SipsnHeaderMinSe *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderMinSeSetGenericParams( SipsnHeaderMinSe **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
