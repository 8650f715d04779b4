// SipsnHeaderPolicyId: the Policy-ID header field, RFC 6794 section 4.4.5.
#include "sipsn_header_policy_id.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( PolicyId )

struct SipsnHeaderPolicyId
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "policyIds", &SipsnHeaderPolicyId::items, sipsn::SkipListItem,
                                                  sipsn::schemaPolicyId ) };
    }
};

SIPSN_LIST_HEADER( PolicyId, "Policy-Id", SIPSN_HEADER_POLICY_ID, givesNull )

SIPSN_VALUES( PolicyId, PolicyIds, PolicyId, PolicyId, id )
