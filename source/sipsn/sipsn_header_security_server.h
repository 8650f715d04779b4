/* SipsnHeaderSecurityServer: the Security-Server header field, RFC 3329 section 2.2; a list of mechanisms.
 *
 * Example: Security-Server: ipsec-3gpp;q=0.100;alg=hmac-sha-1-96
 *
 * Each mechanism is kept as its text, and decoded when TryDecodeMechanismAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_SECURITY_SERVER_H
#define SIPSN_HEADER_SECURITY_SERVER_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_security_mechanism.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSecurityServer ), see sipsn_header.h */
typedef struct SipsnHeaderSecurityServer SipsnHeaderSecurityServer;

PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerCreateFrom( SipsnHeaderSecurityServer *source );
PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerRetain( SipsnHeaderSecurityServer *obj );
PB_API void                       sipsnHeaderSecurityServerRelease( SipsnHeaderSecurityServer *obj );
PB_API PbObj                     *sipsnHeaderSecurityServerObj( SipsnHeaderSecurityServer *obj );
PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderSecurityServerSort( void );
PB_API PbString                  *sipsnHeaderSecurityServerToString( SipsnHeaderSecurityServer *obj );
PB_API int64_t sipsnHeaderSecurityServerCompare( SipsnHeaderSecurityServer *a, SipsnHeaderSecurityServer *b );
PB_API bool    sipsnHeaderSecurityServerEquals( SipsnHeaderSecurityServer *a, SipsnHeaderSecurityServer *b );

PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderSecurityServerEncode( SipsnHeaderSecurityServer *hdr );
PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSecurityServerEncodeToMessage( SipsnHeaderSecurityServer *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderSecurityServerPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderSecurityServerRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderSecurityServerStore( SipsnHeaderSecurityServer *hdr );
PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Mechanisms, Mechanism, SipsnSecurityMechanism ), see sipsn_header.h */
PB_API int64_t sipsnHeaderSecurityServerMechanismsLength( SipsnHeaderSecurityServer *hdr );
PB_API void    sipsnHeaderSecurityServerAppendMechanism( SipsnHeaderSecurityServer **hdr,
                                                         SipsnSecurityMechanism     *securityMechanism );
PB_API void    sipsnHeaderSecurityServerPrependMechanism( SipsnHeaderSecurityServer **hdr,
                                                          SipsnSecurityMechanism     *securityMechanism );
PB_API void    sipsnHeaderSecurityServerInsertMechanism( SipsnHeaderSecurityServer **hdr, int64_t index,
                                                         SipsnSecurityMechanism *securityMechanism );
PB_API void    sipsnHeaderSecurityServerSetMechanismAt( SipsnHeaderSecurityServer **hdr, int64_t index,
                                                        SipsnSecurityMechanism *securityMechanism );
PB_API void    sipsnHeaderSecurityServerDelMechanismAt( SipsnHeaderSecurityServer **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderSecurityServer *sipsnHeaderSecurityServerCreate( void );
PB_API SipsnSecurityMechanism    *sipsnHeaderSecurityServerTryDecodeMechanismAt( SipsnHeaderSecurityServer *hdr,
                                                                                 int64_t                    index );
PB_API void                       sipsnHeaderSecurityServerClearMechanisms( SipsnHeaderSecurityServer **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
