// SipsnDigestCredentials: credentials, RFC 3261 section 25.1.
#include "sipsn_digest_credentials.h"

#include "sipsn_digest_rules.h"

SIPSN_DECLARE_TEXT( DigestCredentials )

struct SipsnDigestCredentials
{
    PbObj               obj;
    PbString           *scheme;
    PbString           *token68;
    PbString           *username;
    PbString           *realm;
    PbString           *nonce;
    PbString           *uri;
    PbString           *response;
    PbString           *algorithm;
    PbString           *cnonce;
    PbString           *opaque;
    PbString           *qop;
    int64_t             nc;
    PbString           *auts;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "scheme", &SipsnDigestCredentials::scheme, sipsn::rule::token ),
            sipsn::OptionalText( "token68", &SipsnDigestCredentials::token68, sipsn::rule::token68 ),
            sipsn::TextParam( "username", &SipsnDigestCredentials::username, sipsn::rule::quotedWord ),
            sipsn::TextParam( "realm", &SipsnDigestCredentials::realm, sipsn::rule::quotedWord ),
            sipsn::TextParam( "nonce", &SipsnDigestCredentials::nonce, sipsn::rule::quotedWord ),
            sipsn::TextParam( "uri", &SipsnDigestCredentials::uri, sipsn::rule::quotedWord ),
            sipsn::TextParam( "response", &SipsnDigestCredentials::response, sipsn::rule::authResponse ),
            sipsn::TextParam( "algorithm", &SipsnDigestCredentials::algorithm, sipsn::rule::authToken ),
            sipsn::TextParam( "cnonce", &SipsnDigestCredentials::cnonce, sipsn::rule::quotedWord ),
            sipsn::TextParam( "opaque", &SipsnDigestCredentials::opaque, sipsn::rule::quotedWord ),
            sipsn::TextParam( "qop", &SipsnDigestCredentials::qop, sipsn::rule::authToken ),
            sipsn::IntParam( "nc", &SipsnDigestCredentials::nc, sipsn::rule::nonceCount ),
            sipsn::TextParam( "auts", &SipsnDigestCredentials::auts, sipsn::rule::quotedWord ),
            sipsn::OtherParams( &SipsnDigestCredentials::genericParams ),
        };
    }
};

SIPSN_VALUE( DigestCredentials, credentials, SIPSN_DIGEST_CREDENTIALS, sipsn::SchemeAndParams )

SIPSN_CREATE_TEXT( DigestCredentials, scheme, sipsnTokenOk )
SIPSN_TEXT( DigestCredentials, credentials, Scheme, scheme, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Token68, token68, sipsnToken68Ok )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Username, username, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Realm, realm, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Nonce, nonce, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Uri, uri, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Response, response, sipsnDigestResponseOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Algorithm, algorithm, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Cnonce, cnonce, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Opaque, opaque, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Qop, qop, sipsnTokenOk )
SIPSN_OPTIONAL_INT( DigestCredentials, credentials, Nc, nc, sipsnNonceCountOk )
SIPSN_OPTIONAL_TEXT( DigestCredentials, credentials, Auts, auts, sipsnQuotableStringOk )
SIPSN_PARAMS( DigestCredentials, credentials )
