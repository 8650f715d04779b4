// SipsnHeaderSipIfMatch: the SIP-If-Match header field, RFC 3903 section 11.3.2.
#include "sipsn_header_sip_if_match.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderSipIfMatch
{
    PbObj     obj;
    PbString *entityTag;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "entityTag", &SipsnHeaderSipIfMatch::entityTag, sipsn::rule::token ),
        };
    }
};

SIPSN_SINGLE_HEADER( SipIfMatch, "Sip-If-Match", SIPSN_HEADER_SIP_IF_MATCH, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderSipIfMatch, entityTag, sipsnTokenOk )
SIPSN_TEXT( HeaderSipIfMatch, hdr, EntityTag, entityTag, sipsnTokenOk )
