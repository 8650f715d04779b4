/* SipsnHeaderUserToUser: the User-to-User header field, RFC 7433 section 4.1; a list of uui-values.
 *
 * Example: User-To-User: 56a390f3d2b7310023;encoding=hex;purpose=isdn-uui;content=isdn-uui;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeUuiValueAt asks for it, which gives null when it is no
 * uui-value. A header field without lines decodes to an empty list. Each value is encoded as a line of its own. In a
 * message the field has the canonical name, "User-To-User". */
#ifndef SIPSN_HEADER_USER_TO_USER_H
#define SIPSN_HEADER_USER_TO_USER_H

#include "sipsn_header.h"
#include "sipsn_uui_value.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderUserToUser, sipsnHeaderUserToUser )

PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderUserToUser, sipsnHeaderUserToUser, UuiValues, UuiValue, SipsnUuiValue, uuiValue )
PB_API SipsnUuiValue *sipsnHeaderUserToUserTryDecodeUuiValueAt( SipsnHeaderUserToUser *hdr, int64_t index );
PB_API void           sipsnHeaderUserToUserClearUuiValues( SipsnHeaderUserToUser **hdr );

PB_END_DECLS
#endif
