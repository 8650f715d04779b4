// SipsnHeaderPolicyContact: the Policy-Contact header field, RFC 6794 section 4.4.5.
#include "sipsn_header_policy_contact.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( PolicyContact )

struct SipsnHeaderPolicyContact
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "policyContacts", &SipsnHeaderPolicyContact::items,
                                                  sipsn::SkipListItem, sipsn::schemaPolicyContact ) };
    }
};

SIPSN_LIST_HEADER( PolicyContact, "Policy-Contact", SIPSN_HEADER_POLICY_CONTACT, givesNull )

SIPSN_VALUES( PolicyContact, PolicyContacts, PolicyContact, PolicyContact, contact )
