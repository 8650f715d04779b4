/* SipsnHeaderPAssertedIdentity: the P-Asserted-Identity header field, RFC 3325 section 9.1; a list of
 * PAssertedID-values.
 *
 * Example: P-Asserted-Identity: "Alice" <sip:alice@example.com>
 *
 * Each value is kept as its text and decoded when TryDecodeIdentityValueAt asks for it, which gives null when it is not
 * a PAssertedID-value. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_ASSERTED_IDENTITY_H
#define SIPSN_HEADER_P_ASSERTED_IDENTITY_H

#include "sipsn_header.h"
#include "sipsn_identity_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPAssertedIdentity ), see sipsn_header.h */
typedef struct SipsnHeaderPAssertedIdentity SipsnHeaderPAssertedIdentity;

PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityCreateFrom( SipsnHeaderPAssertedIdentity *source );
PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityRetain( SipsnHeaderPAssertedIdentity *obj );
PB_API void                          sipsnHeaderPAssertedIdentityRelease( SipsnHeaderPAssertedIdentity *obj );
PB_API PbObj                        *sipsnHeaderPAssertedIdentityObj( SipsnHeaderPAssertedIdentity *obj );
PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityFrom( PbObj *obj );
PB_API PbSort                       *sipsnHeaderPAssertedIdentitySort( void );
PB_API PbString                     *sipsnHeaderPAssertedIdentityToString( SipsnHeaderPAssertedIdentity *obj );
PB_API int64_t sipsnHeaderPAssertedIdentityCompare( SipsnHeaderPAssertedIdentity *a, SipsnHeaderPAssertedIdentity *b );
PB_API bool    sipsnHeaderPAssertedIdentityEquals( SipsnHeaderPAssertedIdentity *a, SipsnHeaderPAssertedIdentity *b );

PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader           *sipsnHeaderPAssertedIdentityEncode( SipsnHeaderPAssertedIdentity *hdr );
PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAssertedIdentityEncodeToMessage( SipsnHeaderPAssertedIdentity *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPAssertedIdentityPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAssertedIdentityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPAssertedIdentityStore( SipsnHeaderPAssertedIdentity *hdr );
PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPAssertedIdentity *sipsnHeaderPAssertedIdentityCreate( void );

/* ./dev lists: LIST( IdentityValues, IdentityValue, SipsnIdentityValue ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPAssertedIdentityIdentityValuesLength( SipsnHeaderPAssertedIdentity *hdr );
PB_API void    sipsnHeaderPAssertedIdentityAppendIdentityValue( SipsnHeaderPAssertedIdentity **hdr,
                                                                SipsnIdentityValue            *identityValue );
PB_API void    sipsnHeaderPAssertedIdentityPrependIdentityValue( SipsnHeaderPAssertedIdentity **hdr,
                                                                 SipsnIdentityValue            *identityValue );
PB_API void    sipsnHeaderPAssertedIdentityInsertIdentityValue( SipsnHeaderPAssertedIdentity **hdr, int64_t index,
                                                                SipsnIdentityValue *identityValue );
PB_API void    sipsnHeaderPAssertedIdentitySetIdentityValueAt( SipsnHeaderPAssertedIdentity **hdr, int64_t index,
                                                               SipsnIdentityValue *identityValue );
PB_API void    sipsnHeaderPAssertedIdentityDelIdentityValueAt( SipsnHeaderPAssertedIdentity **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnIdentityValue *sipsnHeaderPAssertedIdentityTryDecodeIdentityValueAt( SipsnHeaderPAssertedIdentity *hdr,
                                                                                 int64_t                       index );
PB_API void                sipsnHeaderPAssertedIdentityClearIdentityValues( SipsnHeaderPAssertedIdentity **hdr );

PB_END_DECLS
#endif
