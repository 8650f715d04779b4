// SipsnSecurityMechanism: one sec-mechanism, RFC 3329 section 2.2.
#include "sipsn_security_mechanism.h"

#include "sipsn_digest_rules.h"

SIPSN_DECLARE_TEXT( SecurityMechanism )

struct SipsnSecurityMechanism
{
    PbObj               obj;
    PbString           *name;
    int64_t             qvalue;
    PbString           *digestAlg;
    PbString           *digestQop;
    PbString           *digestVerify;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "name", &SipsnSecurityMechanism::name, sipsn::rule::token ),
            sipsn::IntParam( "q", &SipsnSecurityMechanism::qvalue, sipsn::rule::qvalue ),
            sipsn::TextParam( "d-alg", &SipsnSecurityMechanism::digestAlg, sipsn::rule::token, "digestAlg" ),
            sipsn::TextParam( "d-qop", &SipsnSecurityMechanism::digestQop, sipsn::rule::token, "digestQop" ),
            sipsn::TextParam( "d-ver", &SipsnSecurityMechanism::digestVerify, sipsn::rule::digestVerify,
                              "digestVerify" ),
            sipsn::OtherParams( &SipsnSecurityMechanism::genericParams ),
        };
    }
};

SIPSN_VALUE( SecurityMechanism, mechanism, SIPSN_SECURITY_MECHANISM, sipsn::Params )

SIPSN_CREATE_TEXT( SecurityMechanism, name, sipsnTokenOk )
SIPSN_TEXT( SecurityMechanism, mechanism, Name, name, sipsnTokenOk )
SIPSN_OPTIONAL_INT( SecurityMechanism, mechanism, Qvalue, qvalue, sipsnQvalueOk )
SIPSN_OPTIONAL_TEXT( SecurityMechanism, mechanism, DigestAlg, digestAlg, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( SecurityMechanism, mechanism, DigestQop, digestQop, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( SecurityMechanism, mechanism, DigestVerify, digestVerify, sipsnDigestVerifyOk )
SIPSN_PARAMS( SecurityMechanism, mechanism )
