// SipsnHeaderPServedUser: the P-Served-User header field, RFC 8498 section 6.2.
#include "sipsn_header_p_served_user.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderPServedUser
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *sescase;
    PbString           *regstate;
    bool                origCdiv;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderPServedUser::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderPServedUser::displayName, sipsn::rule::displayName ),
            sipsn::TextParam( "sescase", &SipsnHeaderPServedUser::sescase, sipsn::rule::token ),
            sipsn::TextParam( "regstate", &SipsnHeaderPServedUser::regstate, sipsn::rule::token ),
            sipsn::FlagParam( "orig-cdiv", &SipsnHeaderPServedUser::origCdiv, "origCdiv" ),
            sipsn::OtherParams( &SipsnHeaderPServedUser::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PServedUser, "P-Served-User", SIPSN_HEADER_P_SERVED_USER, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderPServedUser, iri, sipsnIriOk )
SIPSN_TEXT( HeaderPServedUser, hdr, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPServedUser, hdr, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_OPTIONAL_TEXT( HeaderPServedUser, hdr, Sescase, sescase, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( HeaderPServedUser, hdr, Regstate, regstate, sipsnTokenOk )
SIPSN_FLAG( HeaderPServedUser, hdr, OrigCdiv, origCdiv )
SIPSN_PARAMS( HeaderPServedUser, hdr )
SIPSN_DEFINE_URI( HeaderPServedUser, hdr )
