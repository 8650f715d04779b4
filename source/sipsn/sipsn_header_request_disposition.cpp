// SipsnHeaderRequestDisposition: the Request-Disposition header field, RFC 3841 section 9.1.
#include "sipsn_header_request_disposition.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderRequestDisposition
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Items( "requestDirectives", &SipsnHeaderRequestDisposition::items, sipsn::rule::requestDirective ) };
    }
};

SIPSN_LIST_HEADER( RequestDisposition, "Request-Disposition", SIPSN_HEADER_REQUEST_DISPOSITION, givesNull )

SIPSN_TEXTS( RequestDisposition, RequestDirectives, RequestDirective, requestDirective, sipsnRequestDirectiveOk )
