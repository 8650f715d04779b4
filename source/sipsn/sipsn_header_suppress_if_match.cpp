// SipsnHeaderSuppressIfMatch: the Suppress-If-Match header field, RFC 5839 section 7.3.
#include "sipsn_header_suppress_if_match.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderSuppressIfMatch
{
    PbObj     obj;
    PbString *entityTag;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "entityTag", &SipsnHeaderSuppressIfMatch::entityTag, sipsn::rule::token ),
        };
    }
};

SIPSN_SINGLE_HEADER( SuppressIfMatch, "Suppress-If-Match", SIPSN_HEADER_SUPPRESS_IF_MATCH, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderSuppressIfMatch, entityTag, sipsnTokenOk )
SIPSN_TEXT( HeaderSuppressIfMatch, hdr, EntityTag, entityTag, sipsnTokenOk )
