// SipsnHeaderPDcsLaes: the P-DCS-LAES header field, RFC 5503 section 8.1.
#include "sipsn_header_p_dcs_laes.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderPDcsLaes
{
    PbObj               obj;
    PbString           *laesSig;
    PbString           *content;
    PbString           *bcid;
    PbString           *cccid;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "laesSig", &SipsnHeaderPDcsLaes::laesSig, sipsn::rule::hostPort ),
            sipsn::TextParam( "content", &SipsnHeaderPDcsLaes::content, sipsn::rule::hostPort ),
            sipsn::TextParam( "bcid", &SipsnHeaderPDcsLaes::bcid, sipsn::rule::correlationId ),
            sipsn::TextParam( "cccid", &SipsnHeaderPDcsLaes::cccid, sipsn::rule::contentConnectionId ),
            sipsn::OtherParams( &SipsnHeaderPDcsLaes::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PDcsLaes, "P-Dcs-Laes", SIPSN_HEADER_P_DCS_LAES, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderPDcsLaes, laesSig, sipsnHostPortOk )
SIPSN_TEXT( HeaderPDcsLaes, hdr, LaesSig, laesSig, sipsnHostPortOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsLaes, hdr, Content, content, sipsnHostPortOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsLaes, hdr, Bcid, bcid, sipsnCorrelationIdOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsLaes, hdr, Cccid, cccid, sipsnContentConnectionIdOk )
SIPSN_PARAMS( HeaderPDcsLaes, hdr )
