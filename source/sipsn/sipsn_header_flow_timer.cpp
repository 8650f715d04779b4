// SipsnHeaderFlowTimer: the Flow-Timer header field, RFC 5626 section 10.
#include "sipsn_header_flow_timer.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderFlowTimer
{
    PbObj   obj;
    int64_t flowTimer;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "flowTimer", &SipsnHeaderFlowTimer::flowTimer, sipsn::rule::deltaSeconds ),
        };
    }
};

SIPSN_SINGLE_HEADER( FlowTimer, "Flow-Timer", SIPSN_HEADER_FLOW_TIMER, sipsn::Number )

SIPSN_CREATE_INT( HeaderFlowTimer, flowTimer, sipsnDeltaSecondsOk )
SIPSN_INT( HeaderFlowTimer, hdr, FlowTimer, flowTimer, sipsnDeltaSecondsOk )
