// SipsnHeaderAlertmsgError: the AlertMsg-Error header field, RFC 8876 section 5.2.
#include "sipsn_header_alertmsg_error.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderAlertmsgError
{
    PbObj               obj;
    int64_t             errorCode;
    PbString           *text;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "errorCode", &SipsnHeaderAlertmsgError::errorCode, sipsn::rule::errorCode ),
            sipsn::TextParam( "message", &SipsnHeaderAlertmsgError::text, sipsn::rule::quotedWord, "text" ),
            sipsn::OtherParams( &SipsnHeaderAlertmsgError::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( AlertmsgError, "Alertmsg-Error", SIPSN_HEADER_ALERTMSG_ERROR, sipsn::Params )

SIPSN_CREATE_INT( HeaderAlertmsgError, errorCode, sipsnErrorCodeOk )
SIPSN_INT( HeaderAlertmsgError, hdr, ErrorCode, errorCode, sipsnErrorCodeOk )
SIPSN_OPTIONAL_TEXT( HeaderAlertmsgError, hdr, Text, text, sipsnQuotableStringOk )
SIPSN_PARAMS( HeaderAlertmsgError, hdr )
