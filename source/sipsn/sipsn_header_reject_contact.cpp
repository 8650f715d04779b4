// SipsnHeaderRejectContact: the Reject-Contact header field, RFC 3841 section 10.
#include "sipsn_header_reject_contact.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( FeatureParams )

struct SipsnHeaderRejectContact
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "features", &SipsnHeaderRejectContact::items, sipsn::SkipListItem,
                                                  sipsn::schemaFeatureParams ) };
    }
};

SIPSN_LIST_HEADER( RejectContact, "Reject-Contact", SIPSN_HEADER_REJECT_CONTACT, givesNull )

SIPSN_VALUES( RejectContact, Features, Feature, FeatureParams, features )
