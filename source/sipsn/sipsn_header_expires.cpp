// SipsnHeaderExpires: the Expires header field, RFC 3261 section 20.19.
#include "sipsn_header_expires.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderExpires
{
    PbObj   obj;
    int64_t deltaSeconds;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "deltaSeconds", &SipsnHeaderExpires::deltaSeconds, sipsn::rule::deltaSeconds ),
        };
    }
};

SIPSN_DEFINE_NAME( Expires, "Expires" )

static constexpr sipsn::LastLine< SipsnHeaderExpires, sipsn::Number< SipsnHeaderExpires > > shape{};

SIPSN_DEFINE_HEADER( Expires, SIPSN_HEADER_EXPIRES, shape )

SipsnHeaderExpires *sipsnHeaderExpiresCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    return sipsn::NewWith( &SipsnHeaderExpires::deltaSeconds, deltaSeconds );
}

int64_t sipsnHeaderExpiresDeltaSeconds( SipsnHeaderExpires *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderExpiresSetDeltaSeconds( SipsnHeaderExpires **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}
