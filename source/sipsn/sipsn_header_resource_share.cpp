// SipsnHeaderResourceShare: the Resource-Share header field, 3GPP TS 24.229.
#include "sipsn_header_resource_share.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderResourceShare
{
    PbObj               obj;
    PbString           *resourceShare;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "resourceShare", &SipsnHeaderResourceShare::resourceShare, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnHeaderResourceShare::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( ResourceShare, "Resource-Share", SIPSN_HEADER_RESOURCE_SHARE, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderResourceShare, resourceShare, sipsnTokenOk )
SIPSN_TEXT( HeaderResourceShare, hdr, ResourceShare, resourceShare, sipsnTokenOk )
SIPSN_PARAMS( HeaderResourceShare, hdr )
