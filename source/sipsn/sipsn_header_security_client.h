/* SipsnHeaderSecurityClient: the Security-Client header field, RFC 3329 section 2.2; a list of mechanisms.
 *
 * Example: Security-Client: ipsec-3gpp;q=0.100;alg=hmac-sha-1-96
 *
 * Each mechanism is kept as its text, and decoded when TryDecodeMechanismAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_SECURITY_CLIENT_H
#define SIPSN_HEADER_SECURITY_CLIENT_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_security_mechanism.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSecurityClient ), see sipsn_header.h */
typedef struct SipsnHeaderSecurityClient SipsnHeaderSecurityClient;

PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientCreateFrom( SipsnHeaderSecurityClient *source );
PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientRetain( SipsnHeaderSecurityClient *obj );
PB_API void                       sipsnHeaderSecurityClientRelease( SipsnHeaderSecurityClient *obj );
PB_API PbObj                     *sipsnHeaderSecurityClientObj( SipsnHeaderSecurityClient *obj );
PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderSecurityClientSort( void );
PB_API PbString                  *sipsnHeaderSecurityClientToString( SipsnHeaderSecurityClient *obj );
PB_API int64_t sipsnHeaderSecurityClientCompare( SipsnHeaderSecurityClient *a, SipsnHeaderSecurityClient *b );
PB_API bool    sipsnHeaderSecurityClientEquals( SipsnHeaderSecurityClient *a, SipsnHeaderSecurityClient *b );

PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderSecurityClientEncode( SipsnHeaderSecurityClient *hdr );
PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSecurityClientEncodeToMessage( SipsnHeaderSecurityClient *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderSecurityClientPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSecurityClientRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderSecurityClientStore( SipsnHeaderSecurityClient *hdr );
PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Mechanisms, Mechanism, SipsnSecurityMechanism ), see sipsn_header.h */
PB_API int64_t sipsnHeaderSecurityClientMechanismsLength( SipsnHeaderSecurityClient *hdr );
PB_API void    sipsnHeaderSecurityClientAppendMechanism( SipsnHeaderSecurityClient **hdr,
                                                         SipsnSecurityMechanism     *securityMechanism );
PB_API void    sipsnHeaderSecurityClientPrependMechanism( SipsnHeaderSecurityClient **hdr,
                                                          SipsnSecurityMechanism     *securityMechanism );
PB_API void    sipsnHeaderSecurityClientInsertMechanism( SipsnHeaderSecurityClient **hdr, int64_t index,
                                                         SipsnSecurityMechanism *securityMechanism );
PB_API void    sipsnHeaderSecurityClientSetMechanismAt( SipsnHeaderSecurityClient **hdr, int64_t index,
                                                        SipsnSecurityMechanism *securityMechanism );
PB_API void    sipsnHeaderSecurityClientDelMechanismAt( SipsnHeaderSecurityClient **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderSecurityClient *sipsnHeaderSecurityClientCreate( void );
PB_API SipsnSecurityMechanism    *sipsnHeaderSecurityClientTryDecodeMechanismAt( SipsnHeaderSecurityClient *hdr,
                                                                                 int64_t                    index );
PB_API void                       sipsnHeaderSecurityClientClearMechanisms( SipsnHeaderSecurityClient **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
