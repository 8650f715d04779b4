// SipsnHeaderAttestationInfo: the Attestation-Info header field, 3GPP TS 24.229.
#include "sipsn_header_attestation_info.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderAttestationInfo
{
    PbObj     obj;
    PbString *attestation;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "attestation", &SipsnHeaderAttestationInfo::attestation, sipsn::rule::token ),
        };
    }
};

SIPSN_SINGLE_HEADER( AttestationInfo, "Attestation-Info", SIPSN_HEADER_ATTESTATION_INFO, sipsn::Number )

SIPSN_CREATE_TEXT( HeaderAttestationInfo, attestation, sipsnTokenOk )
SIPSN_TEXT( HeaderAttestationInfo, hdr, Attestation, attestation, sipsnTokenOk )
