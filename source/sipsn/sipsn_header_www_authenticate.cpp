// SipsnHeaderWwwAuthenticate: the WWW-Authenticate header field, RFC 3261 section 20.44.
#include "sipsn_header_www_authenticate.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( DigestChallenge )

struct SipsnHeaderWwwAuthenticate
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "challenges", &SipsnHeaderWwwAuthenticate::items, sipsn::SkipLine,
                                                  sipsn::schemaDigestChallenge ) };
    }
};

SIPSN_LIST_HEADER( WwwAuthenticate, "Www-Authenticate", SIPSN_HEADER_WWW_AUTHENTICATE, givesNull )

SIPSN_VALUES( WwwAuthenticate, Challenges, Challenge, DigestChallenge, challenge )
