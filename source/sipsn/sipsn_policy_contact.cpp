// SipsnPolicyContact: one policy server of Policy-Contact, RFC 6794 section 4.4.5.
#include "sipsn_policy_contact.h"

#include "sipsn_rules.h"
#include "sipsn_uri_member.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( PolicyContact )

struct SipsnPolicyContact
{
    PbObj               obj;
    PbString           *iri;
    bool                nonCacheable;
    PbString           *altUri;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnPolicyContact::iri, sipsn::rule::iri ),
            sipsn::FlagParam( "non-cacheable", &SipsnPolicyContact::nonCacheable, "nonCacheable" ),
            sipsn::TextParam( "alt-uri", &SipsnPolicyContact::altUri, sipsn::rule::host, "altUri" ),
            sipsn::OtherParams( &SipsnPolicyContact::genericParams ),
        };
    }
};

SIPSN_VALUE( PolicyContact, contact, SIPSN_POLICY_CONTACT, sipsn::Address )

SIPSN_CREATE_TEXT( PolicyContact, iri, sipsnIriOk )
SIPSN_TEXT( PolicyContact, contact, Iri, iri, sipsnIriOk )
SIPSN_FLAG( PolicyContact, contact, NonCacheable, nonCacheable )
SIPSN_OPTIONAL_TEXT( PolicyContact, contact, AltUri, altUri, sipsnHostOk )
SIPSN_PARAMS( PolicyContact, contact )
SIPSN_DEFINE_URI( PolicyContact, contact )
