// SipsnHeaderPMediaAuthorization: the P-Media-Authorization header field, RFC 3313 section 5.1.
#include "sipsn_header_p_media_authorization.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderPMediaAuthorization
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "tokens", &SipsnHeaderPMediaAuthorization::items, sipsn::rule::hexDigits ) };
    }
};

SIPSN_LIST_HEADER( PMediaAuthorization, "P-Media-Authorization", SIPSN_HEADER_P_MEDIA_AUTHORIZATION, givesNull )

SIPSN_TEXTS( PMediaAuthorization, Tokens, Token, hexDigits, sipsnHexDigitsOk )
