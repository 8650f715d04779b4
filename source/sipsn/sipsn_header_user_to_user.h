/* SipsnHeaderUserToUser: the User-to-User header field, RFC 7433 section 4.1; a list of uui-values.
 *
 * Example: User-To-User: 56a390f3d2b7310023;encoding=hex;purpose=isdn-uui;content=isdn-uui;lang=en
 *
 * Each value is kept as its text and decoded when TryDecodeUuiValueAt asks for it, which gives null when it is not a
 * uui-value. A header field without lines decodes to an empty list. Each value is encoded as a line of its own. In a
 * message the field has the canonical name, "User-To-User". */
#ifndef SIPSN_HEADER_USER_TO_USER_H
#define SIPSN_HEADER_USER_TO_USER_H

#include "sipsn_header.h"
#include "sipsn_uui_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderUserToUser ), see sipsn_header.h */
typedef struct SipsnHeaderUserToUser SipsnHeaderUserToUser;

PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserCreateFrom( SipsnHeaderUserToUser *source );
PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserRetain( SipsnHeaderUserToUser *obj );
PB_API void                   sipsnHeaderUserToUserRelease( SipsnHeaderUserToUser *obj );
PB_API PbObj                 *sipsnHeaderUserToUserObj( SipsnHeaderUserToUser *obj );
PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderUserToUserSort( void );
PB_API PbString              *sipsnHeaderUserToUserToString( SipsnHeaderUserToUser *obj );
PB_API int64_t                sipsnHeaderUserToUserCompare( SipsnHeaderUserToUser *a, SipsnHeaderUserToUser *b );
PB_API bool                   sipsnHeaderUserToUserEquals( SipsnHeaderUserToUser *a, SipsnHeaderUserToUser *b );

PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderUserToUserEncode( SipsnHeaderUserToUser *hdr );
PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderUserToUserEncodeToMessage( SipsnHeaderUserToUser *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderUserToUserPresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderUserToUserRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderUserToUserStore( SipsnHeaderUserToUser *hdr );
PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderUserToUser *sipsnHeaderUserToUserCreate( void );

/* ./dev lists: LIST( UuiValues, UuiValue, SipsnUuiValue ), see sipsn_header.h */
PB_API int64_t sipsnHeaderUserToUserUuiValuesLength( SipsnHeaderUserToUser *hdr );
PB_API void    sipsnHeaderUserToUserAppendUuiValue( SipsnHeaderUserToUser **hdr, SipsnUuiValue *uuiValue );
PB_API void    sipsnHeaderUserToUserPrependUuiValue( SipsnHeaderUserToUser **hdr, SipsnUuiValue *uuiValue );
PB_API void sipsnHeaderUserToUserInsertUuiValue( SipsnHeaderUserToUser **hdr, int64_t index, SipsnUuiValue *uuiValue );
PB_API void sipsnHeaderUserToUserSetUuiValueAt( SipsnHeaderUserToUser **hdr, int64_t index, SipsnUuiValue *uuiValue );
PB_API void sipsnHeaderUserToUserDelUuiValueAt( SipsnHeaderUserToUser **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnUuiValue *sipsnHeaderUserToUserTryDecodeUuiValueAt( SipsnHeaderUserToUser *hdr, int64_t index );
PB_API void           sipsnHeaderUserToUserClearUuiValues( SipsnHeaderUserToUser **hdr );

PB_END_DECLS
#endif
