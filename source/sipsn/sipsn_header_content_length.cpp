// SipsnHeaderContentLength: the Content-Length header field, RFC 3261 section 20.14.
#include "sipsn_header_content_length.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderContentLength
{
    PbObj   obj;
    int64_t contentLength;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "contentLength", &SipsnHeaderContentLength::contentLength, sipsn::rule::number ),
        };
    }
};

SIPSN_SINGLE_HEADER( ContentLength, "Content-Length", SIPSN_HEADER_CONTENT_LENGTH, sipsn::Number )

SIPSN_CREATE_INT( HeaderContentLength, contentLength, sipsnNumberOk )
SIPSN_INT( HeaderContentLength, hdr, ContentLength, contentLength, sipsnNumberOk )
