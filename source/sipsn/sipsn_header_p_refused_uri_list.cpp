// SipsnHeaderPRefusedUriList: the P-Refused-URI-List header field, RFC 5318 section 5.
#include "sipsn_header_p_refused_uri_list.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( RefusedUri )

struct SipsnHeaderPRefusedUriList
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "refusedUris", &SipsnHeaderPRefusedUriList::items,
                                                  sipsn::SkipListItem, sipsn::schemaRefusedUri ) };
    }
};

SIPSN_LIST_HEADER( PRefusedUriList, "P-Refused-Uri-List", SIPSN_HEADER_P_REFUSED_URI_LIST, givesNull )

SIPSN_VALUES( PRefusedUriList, RefusedUris, RefusedUri, RefusedUri, refused )
