// SipsnHeaderContentId: the Content-ID header field, RFC 8262 section 3.2.
#include "sipsn_header_content_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderContentId
{
    PbObj     obj;
    PbString *contentId;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "contentId", &SipsnHeaderContentId::contentId, sipsn::rule::contentId ),
        };
    }
};

SIPSN_SINGLE_HEADER( ContentId, "Content-Id", SIPSN_HEADER_CONTENT_ID, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderContentId, contentId, sipsnContentIdOk )
SIPSN_TEXT( HeaderContentId, hdr, ContentId, contentId, sipsnContentIdOk )
