// SipsnDigestChallenge: one challenge, RFC 3261 section 25.1.
#include "sipsn_digest_challenge.h"

#include "sipsn_digest_rules.h"

SIPSN_DECLARE_TEXT( DigestChallenge )

struct SipsnDigestChallenge
{
    PbObj               obj;
    PbString           *scheme;
    PbString           *realm;
    PbString           *domain;
    PbString           *nonce;
    PbString           *opaque;
    bool                stale;
    PbString           *algorithm;
    PbString           *qop;
    PbString           *scope;
    PbString           *authzServer;
    PbString           *error;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "scheme", &SipsnDigestChallenge::scheme, sipsn::rule::token ),
            sipsn::TextParam( "realm", &SipsnDigestChallenge::realm, sipsn::rule::quotedWord ),
            sipsn::TextParam( "domain", &SipsnDigestChallenge::domain, sipsn::rule::quotedWord ),
            sipsn::TextParam( "nonce", &SipsnDigestChallenge::nonce, sipsn::rule::quotedWord ),
            sipsn::TextParam( "opaque", &SipsnDigestChallenge::opaque, sipsn::rule::quotedWord ),
            sipsn::TrueParam( "stale", &SipsnDigestChallenge::stale ),
            sipsn::TextParam( "algorithm", &SipsnDigestChallenge::algorithm, sipsn::rule::authToken ),
            sipsn::TextParam( "qop", &SipsnDigestChallenge::qop, sipsn::rule::quotedWord ),
            sipsn::TextParam( "scope", &SipsnDigestChallenge::scope, sipsn::rule::quotedWord ),
            sipsn::TextParam( "authz_server", &SipsnDigestChallenge::authzServer, sipsn::rule::quotedWord,
                              "authzServer" ),
            sipsn::TextParam( "error", &SipsnDigestChallenge::error, sipsn::rule::quotedWord ),
            sipsn::OtherParams( &SipsnDigestChallenge::genericParams ),
        };
    }
};

SIPSN_VALUE( DigestChallenge, challenge, SIPSN_DIGEST_CHALLENGE, sipsn::SchemeAndParams )

SIPSN_CREATE_TEXT( DigestChallenge, scheme, sipsnTokenOk )
SIPSN_TEXT( DigestChallenge, challenge, Scheme, scheme, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Realm, realm, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Domain, domain, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Nonce, nonce, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Opaque, opaque, sipsnQuotableStringOk )
SIPSN_FLAG( DigestChallenge, challenge, Stale, stale )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Algorithm, algorithm, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Qop, qop, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Scope, scope, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, AuthzServer, authzServer, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestChallenge, challenge, Error, error, sipsnQuotableStringOk )
SIPSN_PARAMS( DigestChallenge, challenge )
