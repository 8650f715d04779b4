// SipsnIdentity: one signature of an Identity header field, RFC 8224 section 4.
#include "sipsn_identity.h"

#include "sipsn_param_forms.h"
#include "sipsn_rules.h"
#include "sipsn_text_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Identity )

struct SipsnIdentity
{
    PbObj               obj;
    PbString           *digest;
    PbString           *info;
    PbString           *alg;
    PbString           *ppt;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "digest", &SipsnIdentity::digest, sipsn::rule::identityDigest ),
            sipsn::TextParam( "info", &SipsnIdentity::info, sipsn::rule::bracketedIri ).Required(),
            sipsn::TextParam( "alg", &SipsnIdentity::alg, sipsn::rule::token ),
            sipsn::TextParam( "ppt", &SipsnIdentity::ppt, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnIdentity::genericParams ),
        };
    }
};

SIPSN_VALUE( Identity, identity, SIPSN_IDENTITY, sipsn::CompleteParams )

SipsnIdentity *sipsnIdentityCreate( PbString *digest, PbString *info )
{
    PB_ASSERT( sipsnIdentityDigestOk( digest ) );
    PB_ASSERT( sipsnIriOk( info ) );
    SipsnIdentity *value = sipsn::NewWith( &SipsnIdentity::digest, sipsn::Normal( &SipsnIdentity::digest, digest ) );
    value->info          = sipsn::Normal( &SipsnIdentity::info, info );
    return value;
}

SIPSN_TEXT( Identity, identity, Digest, digest, sipsnIdentityDigestOk )
SIPSN_TEXT( Identity, identity, Info, info, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( Identity, identity, Alg, alg, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( Identity, identity, Ppt, ppt, sipsnTokenOk )
SIPSN_PARAMS( Identity, identity )
