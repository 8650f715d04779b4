// SipsnHeaderProxyAuthorization: the Proxy-Authorization header field, RFC 3261 section 20.28.
#include "sipsn_header_proxy_authorization.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( DigestCredentials )

struct SipsnHeaderProxyAuthorization
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "credentials", &SipsnHeaderProxyAuthorization::items, sipsn::SkipLine,
                                                  sipsn::schemaDigestCredentials ) };
    }
};

SIPSN_LIST_HEADER( ProxyAuthorization, "Proxy-Authorization", SIPSN_HEADER_PROXY_AUTHORIZATION, givesNull )

SIPSN_VALUES( ProxyAuthorization, Credentials, Credential, DigestCredentials, credentials )
