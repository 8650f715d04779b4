/* SipsnHeaderPAssociatedUri: the P-Associated-URI header field, RFC 7315 section 5.1; a list of addresss.
 *
 * Example: P-Associated-Uri: "Alice" <sip:user1@example.com>
 *
 * Each address is kept as its text, and decoded when TryDecodeAddressAt asks for it. A header field without lines
 * decodes to an empty list. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_ASSOCIATED_URI_H
#define SIPSN_HEADER_P_ASSOCIATED_URI_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_route.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPAssociatedUri ), see sipsn_header.h */
typedef struct SipsnHeaderPAssociatedUri SipsnHeaderPAssociatedUri;

PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriCreateFrom( SipsnHeaderPAssociatedUri *source );
PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriRetain( SipsnHeaderPAssociatedUri *obj );
PB_API void                       sipsnHeaderPAssociatedUriRelease( SipsnHeaderPAssociatedUri *obj );
PB_API PbObj                     *sipsnHeaderPAssociatedUriObj( SipsnHeaderPAssociatedUri *obj );
PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderPAssociatedUriSort( void );
PB_API PbString                  *sipsnHeaderPAssociatedUriToString( SipsnHeaderPAssociatedUri *obj );
PB_API int64_t sipsnHeaderPAssociatedUriCompare( SipsnHeaderPAssociatedUri *a, SipsnHeaderPAssociatedUri *b );
PB_API bool    sipsnHeaderPAssociatedUriEquals( SipsnHeaderPAssociatedUri *a, SipsnHeaderPAssociatedUri *b );

PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderPAssociatedUriEncode( SipsnHeaderPAssociatedUri *hdr );
PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAssociatedUriEncodeToMessage( SipsnHeaderPAssociatedUri *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPAssociatedUriPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAssociatedUriRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPAssociatedUriStore( SipsnHeaderPAssociatedUri *hdr );
PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Addresses, Address, SipsnRoute ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPAssociatedUriAddressesLength( SipsnHeaderPAssociatedUri *hdr );
PB_API void    sipsnHeaderPAssociatedUriAppendAddress( SipsnHeaderPAssociatedUri **hdr, SipsnRoute *route );
PB_API void    sipsnHeaderPAssociatedUriPrependAddress( SipsnHeaderPAssociatedUri **hdr, SipsnRoute *route );
PB_API void sipsnHeaderPAssociatedUriInsertAddress( SipsnHeaderPAssociatedUri **hdr, int64_t index, SipsnRoute *route );
PB_API void sipsnHeaderPAssociatedUriSetAddressAt( SipsnHeaderPAssociatedUri **hdr, int64_t index, SipsnRoute *route );
PB_API void sipsnHeaderPAssociatedUriDelAddressAt( SipsnHeaderPAssociatedUri **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPAssociatedUri *sipsnHeaderPAssociatedUriCreate( void );
PB_API SipsnRoute *sipsnHeaderPAssociatedUriTryDecodeAddressAt( SipsnHeaderPAssociatedUri *hdr, int64_t index );
PB_API void        sipsnHeaderPAssociatedUriClearAddresses( SipsnHeaderPAssociatedUri **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
