// SipsnPolicyId: one policy of Policy-ID, RFC 6794 section 4.4.5.
#include "sipsn_policy_id.h"

#include "sipsn_rules.h"
#include "sipsn_text_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( PolicyId )

struct SipsnPolicyId
{
    PbObj               obj;
    PbString           *iri;
    PbString           *token;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnPolicyId::iri, sipsn::rule::bareIri ),
            sipsn::TextParam( "token", &SipsnPolicyId::token, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnPolicyId::genericParams ),
        };
    }
};

SIPSN_VALUE( PolicyId, id, SIPSN_POLICY_ID, sipsn::Params )

SIPSN_CREATE_TEXT( PolicyId, iri, sipsnBareIriOk )
SIPSN_TEXT( PolicyId, id, Iri, iri, sipsnBareIriOk )
SIPSN_OPTIONAL_TEXT( PolicyId, id, Token, token, sipsnTokenOk )
SIPSN_PARAMS( PolicyId, id )

SipsnUri *sipsnPolicyIdTryDecodeUri( SipsnPolicyId *id )
{
    PB_ASSERT( id );
    return sipsnUriTryDecode( id->iri );
}
void sipsnPolicyIdSetUri( SipsnPolicyId **id, SipsnUri *uri )
{
    PB_ASSERT( uri );
    sipsnPolicyIdSetIri( id, pb::Ref{ sipsnUriEncode( uri ) }.Get() );
}
