// SipsnHeaderInfoPackage: the Info-Package header field, RFC 6086 section 9.2.
#include "sipsn_header_info_package.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderInfoPackage
{
    PbObj               obj;
    PbString           *infoPackage;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "infoPackage", &SipsnHeaderInfoPackage::infoPackage, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnHeaderInfoPackage::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( InfoPackage, "Info-Package", SIPSN_HEADER_INFO_PACKAGE, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderInfoPackage, infoPackage, sipsnTokenOk )
SIPSN_TEXT( HeaderInfoPackage, hdr, InfoPackage, infoPackage, sipsnTokenOk )
SIPSN_PARAMS( HeaderInfoPackage, hdr )
