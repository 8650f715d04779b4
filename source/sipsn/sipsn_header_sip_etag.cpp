// SipsnHeaderSipEtag: the SIP-ETag header field, RFC 3903 section 11.3.1.
#include "sipsn_header_sip_etag.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderSipEtag
{
    PbObj     obj;
    PbString *entityTag;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "entityTag", &SipsnHeaderSipEtag::entityTag, sipsn::rule::token ),
        };
    }
};

SIPSN_SINGLE_HEADER( SipEtag, "Sip-Etag", SIPSN_HEADER_SIP_ETAG, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderSipEtag, entityTag, sipsnTokenOk )
SIPSN_TEXT( HeaderSipEtag, hdr, EntityTag, entityTag, sipsnTokenOk )
