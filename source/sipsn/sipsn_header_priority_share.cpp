// SipsnHeaderPriorityShare: the Priority-Share header field, 3GPP TS 24.229.
#include "sipsn_header_priority_share.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderPriorityShare
{
    PbObj               obj;
    PbString           *priorityShare;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "priorityShare", &SipsnHeaderPriorityShare::priorityShare, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnHeaderPriorityShare::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PriorityShare, "Priority-Share", SIPSN_HEADER_PRIORITY_SHARE, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderPriorityShare, priorityShare, sipsnTokenOk )
SIPSN_TEXT( HeaderPriorityShare, hdr, PriorityShare, priorityShare, sipsnTokenOk )
SIPSN_PARAMS( HeaderPriorityShare, hdr )
