// SipsnHeaderRestorationInfo: the Restoration-Info header field, 3GPP TS 24.229.
#include "sipsn_header_restoration_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"

struct SipsnHeaderRestorationInfo
{
    PbObj               obj;
    PbString           *imsi;
    bool                noresponse;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::TextParam( "imsi", &SipsnHeaderRestorationInfo::imsi, sipsn::rule::quotedWord ),
            sipsn::FlagParam( "noresponse", &SipsnHeaderRestorationInfo::noresponse ),
            sipsn::OtherParams( &SipsnHeaderRestorationInfo::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( RestorationInfo, "Restoration-Info", SIPSN_HEADER_RESTORATION_INFO, sipsn::OnlyParams )

SIPSN_CREATE( HeaderRestorationInfo )
SIPSN_OPTIONAL_TEXT( HeaderRestorationInfo, hdr, Imsi, imsi, sipsnQuotableStringOk )
SIPSN_FLAG( HeaderRestorationInfo, hdr, Noresponse, noresponse )
SIPSN_PARAMS( HeaderRestorationInfo, hdr )
