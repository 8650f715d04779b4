/* SipsnHeaderPPreferredIdentity: the P-Preferred-Identity header field, RFC 3325 section 9.2; a list of
 * PPreferredID-values.
 *
 * Example: P-Preferred-Identity: "Alice" <sip:alice@example.com>
 *
 * Each value is kept as its text and decoded when TryDecodeIdentityValueAt asks for it, which gives null when it is not
 * a PPreferredID-value. A header field without lines does not decode. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_PREFERRED_IDENTITY_H
#define SIPSN_HEADER_P_PREFERRED_IDENTITY_H

#include "sipsn_header.h"
#include "sipsn_identity_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPPreferredIdentity ), see sipsn_header.h */
typedef struct SipsnHeaderPPreferredIdentity SipsnHeaderPPreferredIdentity;

PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityCreateFrom( SipsnHeaderPPreferredIdentity *source );
PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityRetain( SipsnHeaderPPreferredIdentity *obj );
PB_API void                           sipsnHeaderPPreferredIdentityRelease( SipsnHeaderPPreferredIdentity *obj );
PB_API PbObj                         *sipsnHeaderPPreferredIdentityObj( SipsnHeaderPPreferredIdentity *obj );
PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderPPreferredIdentitySort( void );
PB_API PbString                      *sipsnHeaderPPreferredIdentityToString( SipsnHeaderPPreferredIdentity *obj );
PB_API int64_t                        sipsnHeaderPPreferredIdentityCompare( SipsnHeaderPPreferredIdentity *a,
                                                                            SipsnHeaderPPreferredIdentity *b );
PB_API bool sipsnHeaderPPreferredIdentityEquals( SipsnHeaderPPreferredIdentity *a, SipsnHeaderPPreferredIdentity *b );

PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderPPreferredIdentityEncode( SipsnHeaderPPreferredIdentity *hdr );
PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPPreferredIdentityEncodeToMessage( SipsnHeaderPPreferredIdentity *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPPreferredIdentityPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPPreferredIdentityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPPreferredIdentityStore( SipsnHeaderPPreferredIdentity *hdr );
PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPPreferredIdentity *sipsnHeaderPPreferredIdentityCreate( void );

/* ./dev lists: LIST( IdentityValues, IdentityValue, SipsnIdentityValue ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPPreferredIdentityIdentityValuesLength( SipsnHeaderPPreferredIdentity *hdr );
PB_API void    sipsnHeaderPPreferredIdentityAppendIdentityValue( SipsnHeaderPPreferredIdentity **hdr,
                                                                 SipsnIdentityValue             *identityValue );
PB_API void    sipsnHeaderPPreferredIdentityPrependIdentityValue( SipsnHeaderPPreferredIdentity **hdr,
                                                                  SipsnIdentityValue             *identityValue );
PB_API void    sipsnHeaderPPreferredIdentityInsertIdentityValue( SipsnHeaderPPreferredIdentity **hdr, int64_t index,
                                                                 SipsnIdentityValue *identityValue );
PB_API void    sipsnHeaderPPreferredIdentitySetIdentityValueAt( SipsnHeaderPPreferredIdentity **hdr, int64_t index,
                                                                SipsnIdentityValue *identityValue );
PB_API void    sipsnHeaderPPreferredIdentityDelIdentityValueAt( SipsnHeaderPPreferredIdentity **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnIdentityValue *sipsnHeaderPPreferredIdentityTryDecodeIdentityValueAt( SipsnHeaderPPreferredIdentity *hdr,
                                                                                  int64_t index );
PB_API void                sipsnHeaderPPreferredIdentityClearIdentityValues( SipsnHeaderPPreferredIdentity **hdr );

PB_END_DECLS
#endif
