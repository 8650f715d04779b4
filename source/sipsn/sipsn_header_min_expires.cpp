// SipsnHeaderMinExpires: the Min-Expires header field, RFC 3261 section 20.23.
#include "sipsn_header_min_expires.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderMinExpires
{
    PbObj   obj;
    int64_t deltaSeconds;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "deltaSeconds", &SipsnHeaderMinExpires::deltaSeconds, sipsn::rule::deltaSeconds ),
        };
    }
};

SIPSN_DEFINE_NAME( MinExpires, "Min-Expires" )

static constexpr sipsn::LastLine< SipsnHeaderMinExpires, sipsn::Number< SipsnHeaderMinExpires > > shape{};

SIPSN_DEFINE_HEADER( MinExpires, SIPSN_HEADER_MIN_EXPIRES, shape )

SipsnHeaderMinExpires *sipsnHeaderMinExpiresCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    return sipsn::NewWith( &SipsnHeaderMinExpires::deltaSeconds, deltaSeconds );
}

int64_t sipsnHeaderMinExpiresDeltaSeconds( SipsnHeaderMinExpires *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderMinExpiresSetDeltaSeconds( SipsnHeaderMinExpires **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}
