/* SipsnHeaderIdentity: the Identity header field, RFC 8224 section 4; a list of signatures.
 *
 * Example: Identity: ..rq3pjT1hoRwakEGjHCnWSwUnshd0;info=<https://cert.example.org/passport.cer>;alg=ES256
 *
 * Every line holds one, and a comma belongs to it. Each signature is kept as its text, and decoded when
 * TryDecodeIdentityAt asks for it. A header field without lines does not decode. Each is encoded as a line of its
 * own. */
#ifndef SIPSN_HEADER_IDENTITY_H
#define SIPSN_HEADER_IDENTITY_H

#include "sipsn_header.h"
#include "sipsn_identity.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderIdentity ), see sipsn_header.h */
typedef struct SipsnHeaderIdentity SipsnHeaderIdentity;

PB_API SipsnHeaderIdentity *sipsnHeaderIdentityCreateFrom( SipsnHeaderIdentity *source );
PB_API SipsnHeaderIdentity *sipsnHeaderIdentityRetain( SipsnHeaderIdentity *obj );
PB_API void                 sipsnHeaderIdentityRelease( SipsnHeaderIdentity *obj );
PB_API PbObj               *sipsnHeaderIdentityObj( SipsnHeaderIdentity *obj );
PB_API SipsnHeaderIdentity *sipsnHeaderIdentityFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderIdentitySort( void );
PB_API PbString            *sipsnHeaderIdentityToString( SipsnHeaderIdentity *obj );
PB_API int64_t              sipsnHeaderIdentityCompare( SipsnHeaderIdentity *a, SipsnHeaderIdentity *b );
PB_API bool                 sipsnHeaderIdentityEquals( SipsnHeaderIdentity *a, SipsnHeaderIdentity *b );

PB_API SipsnHeaderIdentity *sipsnHeaderIdentityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderIdentityEncode( SipsnHeaderIdentity *hdr );
PB_API SipsnHeaderIdentity *sipsnHeaderIdentityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderIdentityEncodeToMessage( SipsnHeaderIdentity *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderIdentityPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderIdentityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderIdentityStore( SipsnHeaderIdentity *hdr );
PB_API SipsnHeaderIdentity *sipsnHeaderIdentityTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Identities, Identity, SipsnIdentity ), see sipsn_header.h */
PB_API int64_t sipsnHeaderIdentityIdentitiesLength( SipsnHeaderIdentity *hdr );
PB_API void    sipsnHeaderIdentityAppendIdentity( SipsnHeaderIdentity **hdr, SipsnIdentity *identity );
PB_API void    sipsnHeaderIdentityPrependIdentity( SipsnHeaderIdentity **hdr, SipsnIdentity *identity );
PB_API void    sipsnHeaderIdentityInsertIdentity( SipsnHeaderIdentity **hdr, int64_t index, SipsnIdentity *identity );
PB_API void    sipsnHeaderIdentitySetIdentityAt( SipsnHeaderIdentity **hdr, int64_t index, SipsnIdentity *identity );
PB_API void    sipsnHeaderIdentityDelIdentityAt( SipsnHeaderIdentity **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderIdentity *sipsnHeaderIdentityCreate( void );
PB_API SipsnIdentity       *sipsnHeaderIdentityTryDecodeIdentityAt( SipsnHeaderIdentity *hdr, int64_t index );
PB_API void                 sipsnHeaderIdentityClearIdentities( SipsnHeaderIdentity **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
