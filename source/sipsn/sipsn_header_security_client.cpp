// SipsnHeaderSecurityClient: the Security-Client header field, RFC 3329 section 2.2.
#include "sipsn_header_security_client.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( SecurityMechanism )

struct SipsnHeaderSecurityClient
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "mechanisms", &SipsnHeaderSecurityClient::items, sipsn::SkipListItem,
                                                  sipsn::schemaSecurityMechanism ) };
    }
};

SIPSN_LIST_HEADER( SecurityClient, "Security-Client", SIPSN_HEADER_SECURITY_CLIENT, givesNull )

SIPSN_VALUES( SecurityClient, Mechanisms, Mechanism, SecurityMechanism, mechanism )
