// SipsnHeaderPAssociatedUri: the P-Associated-URI header field, RFC 7315 section 5.1.
#include "sipsn_header_p_associated_uri.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Route )

struct SipsnHeaderPAssociatedUri
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "addresses", &SipsnHeaderPAssociatedUri::items, sipsn___SkipRoute, sipsn::schemaRoute ) };
    }
};

SIPSN_LIST_HEADER( PAssociatedUri, "P-Associated-Uri", SIPSN_HEADER_P_ASSOCIATED_URI, givesEmptyHeader )

SIPSN_VALUES( PAssociatedUri, Addresses, Address, Route, route )
