// SipsnHeaderSecurityVerify: the Security-Verify header field, RFC 3329 section 2.2.
#include "sipsn_header_security_verify.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( SecurityMechanism )

struct SipsnHeaderSecurityVerify
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "mechanisms", &SipsnHeaderSecurityVerify::items, sipsn::SkipListItem,
                                                  sipsn::schemaSecurityMechanism ) };
    }
};

SIPSN_LIST_HEADER( SecurityVerify, "Security-Verify", SIPSN_HEADER_SECURITY_VERIFY, givesNull )

SIPSN_VALUES( SecurityVerify, Mechanisms, Mechanism, SecurityMechanism, mechanism )
