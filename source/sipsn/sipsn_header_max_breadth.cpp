// SipsnHeaderMaxBreadth: the Max-Breadth header field, RFC 5393 section 5.8.
#include "sipsn_header_max_breadth.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr IntRule maxBreadth{ .words      = "a number of targets",
                                     .ok         = sipsnMaxBreadthOk,
                                     .lowest     = 1,
                                     .highest    = INT64_MAX,
                                     .production = sipsn___SkipDigits,
                                     .decoded    = DecimalFromChars };

} // namespace sipsn::rule

struct SipsnHeaderMaxBreadth
{
    PbObj   obj;
    int64_t maxBreadth;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Int( "maxBreadth", &SipsnHeaderMaxBreadth::maxBreadth, sipsn::rule::maxBreadth ) };
    }
};

SIPSN_SINGLE_HEADER( MaxBreadth, "Max-Breadth", SIPSN_HEADER_MAX_BREADTH, sipsn::Number )

SIPSN_CREATE_INT( HeaderMaxBreadth, maxBreadth, sipsnMaxBreadthOk )
SIPSN_INT( HeaderMaxBreadth, hdr, MaxBreadth, maxBreadth, sipsnMaxBreadthOk )
