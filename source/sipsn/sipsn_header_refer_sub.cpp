// SipsnHeaderReferSub: the Refer-Sub header field, RFC 4488 section 4.
#include "sipsn_header_refer_sub.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderReferSub
{
    PbObj               obj;
    PbString           *referSub;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "referSub", &SipsnHeaderReferSub::referSub, sipsn::rule::referSub ),
            sipsn::OtherParams( &SipsnHeaderReferSub::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( ReferSub, "Refer-Sub", SIPSN_HEADER_REFER_SUB, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderReferSub, referSub, sipsnReferSubOk )
SIPSN_TEXT( HeaderReferSub, hdr, ReferSub, referSub, sipsnReferSubOk )
SIPSN_PARAMS( HeaderReferSub, hdr )
