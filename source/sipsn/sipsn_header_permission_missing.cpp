// SipsnHeaderPermissionMissing: the Permission-Missing header field, RFC 5360 section 5.9.3.
#include "sipsn_header_permission_missing.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Address )

struct SipsnHeaderPermissionMissing
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "addresses", &SipsnHeaderPermissionMissing::items,
                                                  sipsn::SkipListItem, sipsn::schemaAddress ) };
    }
};

SIPSN_LIST_HEADER( PermissionMissing, "Permission-Missing", SIPSN_HEADER_PERMISSION_MISSING, givesNull )

SIPSN_VALUES( PermissionMissing, Addresses, Address, Address, address )
