// SipsnHeaderUserToUser: the User-to-User header field, RFC 7433 section 4.1.
#include "sipsn_header_user_to_user.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( UuiValue )

struct SipsnHeaderUserToUser
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Values( "uuiValues", &SipsnHeaderUserToUser::items, sipsn___SkipUuiValue, sipsn::schemaUuiValue ) };
    }
};

SIPSN_DEFINE_NAME( UserToUser, "User-to-User" )

static constexpr sipsn::List< SipsnHeaderUserToUser > shape{ .noLines = sipsn::NoLines::givesEmptyHeader };

SIPSN_DEFINE_HEADER( UserToUser, SIPSN_HEADER_USER_TO_USER, shape )
SIPSN_DEFINE_LIST( UserToUser, UuiValues, UuiValue, SipsnUuiValue, uuiValue, sipsn___UuiValueEncode )

SipsnHeaderUserToUser *sipsnHeaderUserToUserCreate( void ) { return shape.Create(); }
void                   sipsnHeaderUserToUserClearUuiValues( SipsnHeaderUserToUser **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnUuiValue *sipsnHeaderUserToUserTryDecodeUuiValueAt( SipsnHeaderUserToUser *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___UuiValueTryDecode );
}
