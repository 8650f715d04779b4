// SipsnHeaderOriginationId: the Origination-Id header field, 3GPP TS 24.229.
#include "sipsn_header_origination_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderOriginationId
{
    PbObj     obj;
    PbString *originationId;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "originationId", &SipsnHeaderOriginationId::originationId, sipsn::rule::originationId ),
        };
    }
};

SIPSN_SINGLE_HEADER( OriginationId, "Origination-Id", SIPSN_HEADER_ORIGINATION_ID, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderOriginationId, originationId, sipsnOriginationIdOk )
SIPSN_TEXT( HeaderOriginationId, hdr, OriginationId, originationId, sipsnOriginationIdOk )
