// SipsnHeaderIdentity: the Identity header field, RFC 8224 section 4.
#include "sipsn_header_identity.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Identity )

struct SipsnHeaderIdentity
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::DecodedValues( "identities", &SipsnHeaderIdentity::items, sipsn::SkipLine, sipsn::schemaIdentity ) };
    }
};

SIPSN_LIST_HEADER( Identity, "Identity", SIPSN_HEADER_IDENTITY, givesNull )

SIPSN_VALUES( Identity, Identities, Identity, Identity, identity )
