// SipsnHeaderPDcsRedirect: the P-DCS-Redirect header field, RFC 5503 section 8.1.
#include "sipsn_header_p_dcs_redirect.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderPDcsRedirect
{
    PbObj               obj;
    PbString           *calledId;
    PbString           *redirectorUri;
    int64_t             count;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "calledId", &SipsnHeaderPDcsRedirect::calledId, sipsn::rule::quotedIri ),
            sipsn::TextParam( "redirector-uri", &SipsnHeaderPDcsRedirect::redirectorUri, sipsn::rule::quotedIri,
                              "redirectorUri" ),
            sipsn::IntParam( "count", &SipsnHeaderPDcsRedirect::count, sipsn::rule::number ),
            sipsn::OtherParams( &SipsnHeaderPDcsRedirect::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PDcsRedirect, "P-Dcs-Redirect", SIPSN_HEADER_P_DCS_REDIRECT, sipsn::Params )

SIPSN_CREATE_TEXT( HeaderPDcsRedirect, calledId, sipsnIriOk )
SIPSN_TEXT( HeaderPDcsRedirect, hdr, CalledId, calledId, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsRedirect, hdr, RedirectorUri, redirectorUri, sipsnIriOk )
SIPSN_OPTIONAL_INT( HeaderPDcsRedirect, hdr, Count, count, sipsnNumberOk )
SIPSN_PARAMS( HeaderPDcsRedirect, hdr )
