// SipsnHeaderPChargeInfo: the P-Charge-Info header field, RFC 8496 section 6.
#include "sipsn_header_p_charge_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderPChargeInfo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderPChargeInfo::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderPChargeInfo::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderPChargeInfo::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PChargeInfo, "P-Charge-Info", SIPSN_HEADER_P_CHARGE_INFO, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderPChargeInfo, iri, sipsnIriOk )
SIPSN_TEXT( HeaderPChargeInfo, hdr, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPChargeInfo, hdr, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_PARAMS( HeaderPChargeInfo, hdr )
SIPSN_DEFINE_URI( HeaderPChargeInfo, hdr )
