// SipsnHeaderSecurityServer: the Security-Server header field, RFC 3329 section 2.2.
#include "sipsn_header_security_server.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( SecurityMechanism )

struct SipsnHeaderSecurityServer
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "mechanisms", &SipsnHeaderSecurityServer::items, sipsn::SkipListItem,
                                                  sipsn::schemaSecurityMechanism ) };
    }
};

SIPSN_LIST_HEADER( SecurityServer, "Security-Server", SIPSN_HEADER_SECURITY_SERVER, givesNull )

SIPSN_VALUES( SecurityServer, Mechanisms, Mechanism, SecurityMechanism, mechanism )
