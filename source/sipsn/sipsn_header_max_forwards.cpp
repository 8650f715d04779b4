// SipsnHeaderMaxForwards: the Max-Forwards header field, RFC 3261 section 20.22.
#include "sipsn_header_max_forwards.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr IntRule maxForwards{ .words      = "a number of hops",
                                      .ok         = sipsnMaxForwardsOk,
                                      .lowest     = 0,
                                      .highest    = 255,
                                      .production = sipsn___SkipDigits,
                                      .decoded    = DecimalFromChars };

} // namespace sipsn::rule

struct SipsnHeaderMaxForwards
{
    PbObj   obj;
    int64_t maxForwards;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "maxForwards", &SipsnHeaderMaxForwards::maxForwards, sipsn::rule::maxForwards ),
        };
    }
};

SIPSN_DEFINE_NAME( MaxForwards, "Max-Forwards" )

static constexpr sipsn::LastLine< SipsnHeaderMaxForwards, sipsn::Number< SipsnHeaderMaxForwards > > shape{};

SIPSN_DEFINE_HEADER( MaxForwards, SIPSN_HEADER_MAX_FORWARDS, shape )

SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsCreate( int64_t maxForwards )
{
    PB_ASSERT( sipsnMaxForwardsOk( maxForwards ) );
    return sipsn::NewWith( &SipsnHeaderMaxForwards::maxForwards, maxForwards );
}

int64_t sipsnHeaderMaxForwardsMaxForwards( SipsnHeaderMaxForwards *hdr ) { return PB_GET( hdr, maxForwards ); }
void    sipsnHeaderMaxForwardsSetMaxForwards( SipsnHeaderMaxForwards **hdr, int64_t maxForwards )
{
    PB_SET( hdr, maxForwards, sipsnMaxForwardsOk( maxForwards ), maxForwards );
}
