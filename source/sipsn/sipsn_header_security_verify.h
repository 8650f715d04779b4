/* SipsnHeaderSecurityVerify: the Security-Verify header field, RFC 3329 section 2.2; a list of mechanisms.
 *
 * Example: Security-Verify: ipsec-3gpp;q=0.100;alg=hmac-sha-1-96
 *
 * Each mechanism is kept as its text, and decoded when TryDecodeMechanismAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_SECURITY_VERIFY_H
#define SIPSN_HEADER_SECURITY_VERIFY_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_security_mechanism.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSecurityVerify ), see sipsn_header.h */
typedef struct SipsnHeaderSecurityVerify SipsnHeaderSecurityVerify;

PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyCreateFrom( SipsnHeaderSecurityVerify *source );
PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyRetain( SipsnHeaderSecurityVerify *obj );
PB_API void                       sipsnHeaderSecurityVerifyRelease( SipsnHeaderSecurityVerify *obj );
PB_API PbObj                     *sipsnHeaderSecurityVerifyObj( SipsnHeaderSecurityVerify *obj );
PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderSecurityVerifySort( void );
PB_API PbString                  *sipsnHeaderSecurityVerifyToString( SipsnHeaderSecurityVerify *obj );
PB_API int64_t sipsnHeaderSecurityVerifyCompare( SipsnHeaderSecurityVerify *a, SipsnHeaderSecurityVerify *b );
PB_API bool    sipsnHeaderSecurityVerifyEquals( SipsnHeaderSecurityVerify *a, SipsnHeaderSecurityVerify *b );

PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderSecurityVerifyEncode( SipsnHeaderSecurityVerify *hdr );
PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSecurityVerifyEncodeToMessage( SipsnHeaderSecurityVerify *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderSecurityVerifyPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSecurityVerifyRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderSecurityVerifyStore( SipsnHeaderSecurityVerify *hdr );
PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Mechanisms, Mechanism, SipsnSecurityMechanism ), see sipsn_header.h */
PB_API int64_t sipsnHeaderSecurityVerifyMechanismsLength( SipsnHeaderSecurityVerify *hdr );
PB_API void    sipsnHeaderSecurityVerifyAppendMechanism( SipsnHeaderSecurityVerify **hdr,
                                                         SipsnSecurityMechanism     *securityMechanism );
PB_API void    sipsnHeaderSecurityVerifyPrependMechanism( SipsnHeaderSecurityVerify **hdr,
                                                          SipsnSecurityMechanism     *securityMechanism );
PB_API void    sipsnHeaderSecurityVerifyInsertMechanism( SipsnHeaderSecurityVerify **hdr, int64_t index,
                                                         SipsnSecurityMechanism *securityMechanism );
PB_API void    sipsnHeaderSecurityVerifySetMechanismAt( SipsnHeaderSecurityVerify **hdr, int64_t index,
                                                        SipsnSecurityMechanism *securityMechanism );
PB_API void    sipsnHeaderSecurityVerifyDelMechanismAt( SipsnHeaderSecurityVerify **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderSecurityVerify *sipsnHeaderSecurityVerifyCreate( void );
PB_API SipsnSecurityMechanism    *sipsnHeaderSecurityVerifyTryDecodeMechanismAt( SipsnHeaderSecurityVerify *hdr,
                                                                                 int64_t                    index );
PB_API void                       sipsnHeaderSecurityVerifyClearMechanisms( SipsnHeaderSecurityVerify **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
