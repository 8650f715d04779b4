// SipsnHeaderAuthenticationInfo: the Authentication-Info header field, RFC 3261 section 20.6 and RFC 7616 section 3.5.
#include "sipsn_header_authentication_info.h"

#include "sipsn_digest_rules.h"
#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"

struct SipsnHeaderAuthenticationInfo
{
    PbObj               obj;
    PbString           *nextnonce;
    PbString           *qop;
    PbString           *rspauth;
    PbString           *cnonce;
    int64_t             nc;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::TextParam( "nextnonce", &SipsnHeaderAuthenticationInfo::nextnonce, sipsn::rule::quotedWord ),
            sipsn::TextParam( "qop", &SipsnHeaderAuthenticationInfo::qop, sipsn::rule::authToken ),
            sipsn::TextParam( "rspauth", &SipsnHeaderAuthenticationInfo::rspauth, sipsn::rule::authResponse ),
            sipsn::TextParam( "cnonce", &SipsnHeaderAuthenticationInfo::cnonce, sipsn::rule::quotedWord ),
            sipsn::IntParam( "nc", &SipsnHeaderAuthenticationInfo::nc, sipsn::rule::nonceCount ),
            sipsn::OtherParams( &SipsnHeaderAuthenticationInfo::genericParams ),
        };
    }
};

// Parameters that commas separate.
template< class T > using CommaParams = sipsn::OnlyParams< T, sipsn___SkipComma, ',' >;

SIPSN_SINGLE_HEADER( AuthenticationInfo, "Authentication-Info", SIPSN_HEADER_AUTHENTICATION_INFO, CommaParams )

SIPSN_CREATE( HeaderAuthenticationInfo )
SIPSN_OPTIONAL_TEXT( HeaderAuthenticationInfo, hdr, Nextnonce, nextnonce, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( HeaderAuthenticationInfo, hdr, Qop, qop, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( HeaderAuthenticationInfo, hdr, Rspauth, rspauth, sipsnDigestResponseOk )
SIPSN_OPTIONAL_TEXT( HeaderAuthenticationInfo, hdr, Cnonce, cnonce, sipsnQuotableStringOk )
SIPSN_OPTIONAL_INT( HeaderAuthenticationInfo, hdr, Nc, nc, sipsnNonceCountOk )
SIPSN_PARAMS( HeaderAuthenticationInfo, hdr )
