/* SipsnHeaderPPrivateNetworkIndication: the P-Private-Network-Indication header field, RFC 7316 section 7; the private
 * network that a request belongs to.
 *
 * Example: P-Private-Network-Indication: example.com;lang=en
 *
 *     P-Private-Network-Indication = hostname *( SEMI generic-param )
 *
 *     network          a host name; never absent
 *     generic params   the parameters; never absent, may be empty
 *
 * An address in place of the name is not refused. Only the last line of the header field counts; without lines it
 * does not decode. */
#ifndef SIPSN_HEADER_P_PRIVATE_NETWORK_INDICATION_H
#define SIPSN_HEADER_P_PRIVATE_NETWORK_INDICATION_H

#include "sipsn_header.h"
#include "sipsn_host.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPPrivateNetworkIndication ), see sipsn_header.h */
typedef struct SipsnHeaderPPrivateNetworkIndication SipsnHeaderPPrivateNetworkIndication;

PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationCreateFrom(
    SipsnHeaderPPrivateNetworkIndication *source );
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationRetain(
    SipsnHeaderPPrivateNetworkIndication *obj );
PB_API void   sipsnHeaderPPrivateNetworkIndicationRelease( SipsnHeaderPPrivateNetworkIndication *obj );
PB_API PbObj *sipsnHeaderPPrivateNetworkIndicationObj( SipsnHeaderPPrivateNetworkIndication *obj );
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationFrom( PbObj *obj );
PB_API PbSort                               *sipsnHeaderPPrivateNetworkIndicationSort( void );
PB_API PbString *sipsnHeaderPPrivateNetworkIndicationToString( SipsnHeaderPPrivateNetworkIndication *obj );
PB_API int64_t   sipsnHeaderPPrivateNetworkIndicationCompare( SipsnHeaderPPrivateNetworkIndication *a,
                                                              SipsnHeaderPPrivateNetworkIndication *b );
PB_API bool      sipsnHeaderPPrivateNetworkIndicationEquals( SipsnHeaderPPrivateNetworkIndication *a,
                                                             SipsnHeaderPPrivateNetworkIndication *b );

PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationTryDecode(
    SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderPPrivateNetworkIndicationEncode( SipsnHeaderPPrivateNetworkIndication *hdr );
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationTryDecodeFromMessage(
    SipsnMessage *msg );
PB_API void     sipsnHeaderPPrivateNetworkIndicationEncodeToMessage( SipsnHeaderPPrivateNetworkIndication *hdr,
                                                                     SipsnMessage                        **msg );
PB_API bool     sipsnHeaderPPrivateNetworkIndicationPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPPrivateNetworkIndicationRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPPrivateNetworkIndicationStore( SipsnHeaderPPrivateNetworkIndication *hdr );
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationCreate( PbString *network );
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationCreateCstr( const char *network,
                                                                                             int64_t     length );
PB_API SipsnHeaderPPrivateNetworkIndication *sipsnHeaderPPrivateNetworkIndicationCreateWcstr( const wchar_t *network,
                                                                                              int64_t        length );

PB_API PbString *sipsnHeaderPPrivateNetworkIndicationNetwork( SipsnHeaderPPrivateNetworkIndication *hdr );
PB_API void      sipsnHeaderPPrivateNetworkIndicationSetNetwork( SipsnHeaderPPrivateNetworkIndication **hdr,
                                                                 PbString                              *network );
PB_API void      sipsnHeaderPPrivateNetworkIndicationSetNetworkCstr( SipsnHeaderPPrivateNetworkIndication **hdr,
                                                                     const char *network, int64_t length );
PB_API void      sipsnHeaderPPrivateNetworkIndicationSetNetworkWcstr( SipsnHeaderPPrivateNetworkIndication **hdr,
                                                                      const wchar_t *network, int64_t length );

PB_API SipsnGenericParams *sipsnHeaderPPrivateNetworkIndicationGenericParams(
    SipsnHeaderPPrivateNetworkIndication *hdr );
PB_API void sipsnHeaderPPrivateNetworkIndicationSetGenericParams( SipsnHeaderPPrivateNetworkIndication **hdr,
                                                                  SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
