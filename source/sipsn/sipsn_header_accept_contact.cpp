// SipsnHeaderAcceptContact: the Accept-Contact header field, RFC 3841 section 10.
#include "sipsn_header_accept_contact.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( FeatureParams )

struct SipsnHeaderAcceptContact
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "features", &SipsnHeaderAcceptContact::items, sipsn::SkipListItem,
                                                  sipsn::schemaFeatureParams ) };
    }
};

SIPSN_LIST_HEADER( AcceptContact, "Accept-Contact", SIPSN_HEADER_ACCEPT_CONTACT, givesNull )

SIPSN_VALUES( AcceptContact, Features, Feature, FeatureParams, features )
