// SipsnHeaderAuthorization: the Authorization header field, RFC 3261 section 20.7.
#include "sipsn_header_authorization.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( DigestCredentials )

struct SipsnHeaderAuthorization
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "credentials", &SipsnHeaderAuthorization::items, sipsn::SkipLine,
                                                  sipsn::schemaDigestCredentials ) };
    }
};

SIPSN_LIST_HEADER( Authorization, "Authorization", SIPSN_HEADER_AUTHORIZATION, givesNull )

SIPSN_VALUES( Authorization, Credentials, Credential, DigestCredentials, credentials )
