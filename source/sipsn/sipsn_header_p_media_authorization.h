/* SipsnHeaderPMediaAuthorization: the P-Media-Authorization header field, RFC 3313 section 5.1; a list of tokens.
 *
 * Example: P-Media-Authorization: 00ab
 *
 * Tokens are hexadecimal digits, kept as written. A header field without lines does not decode. Each is encoded as a
 * line of its own. An invalid one aborts. */
#ifndef SIPSN_HEADER_P_MEDIA_AUTHORIZATION_H
#define SIPSN_HEADER_P_MEDIA_AUTHORIZATION_H

#include "sipsn_header.h"
#include "sipsn_hex_digits.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPMediaAuthorization ), see sipsn_header.h */
typedef struct SipsnHeaderPMediaAuthorization SipsnHeaderPMediaAuthorization;

PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationCreateFrom(
    SipsnHeaderPMediaAuthorization *source );
PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationRetain( SipsnHeaderPMediaAuthorization *obj );
PB_API void                            sipsnHeaderPMediaAuthorizationRelease( SipsnHeaderPMediaAuthorization *obj );
PB_API PbObj                          *sipsnHeaderPMediaAuthorizationObj( SipsnHeaderPMediaAuthorization *obj );
PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationFrom( PbObj *obj );
PB_API PbSort                         *sipsnHeaderPMediaAuthorizationSort( void );
PB_API PbString                       *sipsnHeaderPMediaAuthorizationToString( SipsnHeaderPMediaAuthorization *obj );
PB_API int64_t                         sipsnHeaderPMediaAuthorizationCompare( SipsnHeaderPMediaAuthorization *a,
                                                                              SipsnHeaderPMediaAuthorization *b );
PB_API bool                            sipsnHeaderPMediaAuthorizationEquals( SipsnHeaderPMediaAuthorization *a,
                                                                             SipsnHeaderPMediaAuthorization *b );

PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader             *sipsnHeaderPMediaAuthorizationEncode( SipsnHeaderPMediaAuthorization *hdr );
PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationTryDecodeFromMessage( SipsnMessage *msg );
PB_API void sipsnHeaderPMediaAuthorizationEncodeToMessage( SipsnHeaderPMediaAuthorization *hdr, SipsnMessage **msg );
PB_API bool sipsnHeaderPMediaAuthorizationPresentInMessage( SipsnMessage *msg );
PB_API void sipsnHeaderPMediaAuthorizationRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                        *sipsnHeaderPMediaAuthorizationStore( SipsnHeaderPMediaAuthorization *hdr );
PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Tokens, Token, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPMediaAuthorizationTokensLength( SipsnHeaderPMediaAuthorization *hdr );
PB_API void    sipsnHeaderPMediaAuthorizationAppendToken( SipsnHeaderPMediaAuthorization **hdr, PbString *token );
PB_API void    sipsnHeaderPMediaAuthorizationPrependToken( SipsnHeaderPMediaAuthorization **hdr, PbString *token );
PB_API void    sipsnHeaderPMediaAuthorizationInsertToken( SipsnHeaderPMediaAuthorization **hdr, int64_t index,
                                                          PbString *token );
PB_API void    sipsnHeaderPMediaAuthorizationSetTokenAt( SipsnHeaderPMediaAuthorization **hdr, int64_t index,
                                                         PbString *token );
PB_API void    sipsnHeaderPMediaAuthorizationDelTokenAt( SipsnHeaderPMediaAuthorization **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPMediaAuthorization *sipsnHeaderPMediaAuthorizationCreate( void );
PB_API PbString *sipsnHeaderPMediaAuthorizationTokenAt( SipsnHeaderPMediaAuthorization *hdr, int64_t index );
PB_API void      sipsnHeaderPMediaAuthorizationClearTokens( SipsnHeaderPMediaAuthorization **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
