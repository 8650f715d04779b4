// SipsnHeaderProxyAuthenticate: the Proxy-Authenticate header field, RFC 3261 section 20.27.
#include "sipsn_header_proxy_authenticate.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( DigestChallenge )

struct SipsnHeaderProxyAuthenticate
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "challenges", &SipsnHeaderProxyAuthenticate::items, sipsn::SkipLine,
                                                  sipsn::schemaDigestChallenge ) };
    }
};

SIPSN_LIST_HEADER( ProxyAuthenticate, "Proxy-Authenticate", SIPSN_HEADER_PROXY_AUTHENTICATE, givesNull )

SIPSN_VALUES( ProxyAuthenticate, Challenges, Challenge, DigestChallenge, challenge )
