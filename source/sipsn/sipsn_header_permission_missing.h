/* SipsnHeaderPermissionMissing: the Permission-Missing header field, RFC 5360 section 5.9.3; a list of addresss.
 *
 * Example: Permission-Missing: <sip:C@example.com>
 *
 * Each address is kept as its text, and decoded when TryDecodeAddressAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_PERMISSION_MISSING_H
#define SIPSN_HEADER_PERMISSION_MISSING_H

#include "sipsn_address.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPermissionMissing ), see sipsn_header.h */
typedef struct SipsnHeaderPermissionMissing SipsnHeaderPermissionMissing;

PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingCreateFrom( SipsnHeaderPermissionMissing *source );
PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingRetain( SipsnHeaderPermissionMissing *obj );
PB_API void                          sipsnHeaderPermissionMissingRelease( SipsnHeaderPermissionMissing *obj );
PB_API PbObj                        *sipsnHeaderPermissionMissingObj( SipsnHeaderPermissionMissing *obj );
PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingFrom( PbObj *obj );
PB_API PbSort                       *sipsnHeaderPermissionMissingSort( void );
PB_API PbString                     *sipsnHeaderPermissionMissingToString( SipsnHeaderPermissionMissing *obj );
PB_API int64_t sipsnHeaderPermissionMissingCompare( SipsnHeaderPermissionMissing *a, SipsnHeaderPermissionMissing *b );
PB_API bool    sipsnHeaderPermissionMissingEquals( SipsnHeaderPermissionMissing *a, SipsnHeaderPermissionMissing *b );

PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader           *sipsnHeaderPermissionMissingEncode( SipsnHeaderPermissionMissing *hdr );
PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPermissionMissingEncodeToMessage( SipsnHeaderPermissionMissing *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPermissionMissingPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPermissionMissingRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPermissionMissingStore( SipsnHeaderPermissionMissing *hdr );
PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Addresses, Address, SipsnAddress ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPermissionMissingAddressesLength( SipsnHeaderPermissionMissing *hdr );
PB_API void    sipsnHeaderPermissionMissingAppendAddress( SipsnHeaderPermissionMissing **hdr, SipsnAddress *address );
PB_API void    sipsnHeaderPermissionMissingPrependAddress( SipsnHeaderPermissionMissing **hdr, SipsnAddress *address );
PB_API void    sipsnHeaderPermissionMissingInsertAddress( SipsnHeaderPermissionMissing **hdr, int64_t index,
                                                          SipsnAddress *address );
PB_API void    sipsnHeaderPermissionMissingSetAddressAt( SipsnHeaderPermissionMissing **hdr, int64_t index,
                                                         SipsnAddress *address );
PB_API void    sipsnHeaderPermissionMissingDelAddressAt( SipsnHeaderPermissionMissing **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPermissionMissing *sipsnHeaderPermissionMissingCreate( void );
PB_API SipsnAddress *sipsnHeaderPermissionMissingTryDecodeAddressAt( SipsnHeaderPermissionMissing *hdr, int64_t index );
PB_API void          sipsnHeaderPermissionMissingClearAddresses( SipsnHeaderPermissionMissing **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
