// SipsnHeaderUserToUser: the User-to-User header field, RFC 7433 section 4.1.
#include "sipsn_header_user_to_user.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderUserToUser
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderUserToUser::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderUserToUser, sipsn___PbsUserToUser, "User-to-User" )

static constexpr sipsn::List< SipsnHeaderUserToUser > shape{
    .items   = &SipsnHeaderUserToUser::items,
    .item    = sipsn___SkipUuiValue,
    .noLines = sipsn::NoLines::givesEmptyHeader,
};

SIPSN_DEFINE_HEADER( SipsnHeaderUserToUser, sipsnHeaderUserToUser, SIPSN_HEADER_USER_TO_USER, sipsn___PbsUserToUser,
                     shape )
SIPSN_DEFINE_LIST( SipsnHeaderUserToUser, sipsnHeaderUserToUser, UuiValues, UuiValue, SipsnUuiValue, uuiValue,
                   sipsn___UuiValueEncode )

SipsnHeaderUserToUser *sipsnHeaderUserToUserCreate( void ) { return shape.Create(); }
void                   sipsnHeaderUserToUserClearUuiValues( SipsnHeaderUserToUser **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnUuiValue *sipsnHeaderUserToUserTryDecodeUuiValueAt( SipsnHeaderUserToUser *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___UuiValueTryDecode );
}
