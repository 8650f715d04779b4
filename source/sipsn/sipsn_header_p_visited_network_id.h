/* SipsnHeaderPVisitedNetworkId: the P-Visited-Network-ID header field, RFC 7315 section 5.3; a list of networks.
 *
 * Example: P-Visited-Network-Id: "Visited network number 1"
 *
 * Each network is kept as its text, and decoded when TryDecodeNetworkAt asks for it. A header field without lines
 * does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_VISITED_NETWORK_ID_H
#define SIPSN_HEADER_P_VISITED_NETWORK_ID_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_visited_network.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPVisitedNetworkId ), see sipsn_header.h */
typedef struct SipsnHeaderPVisitedNetworkId SipsnHeaderPVisitedNetworkId;

PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdCreateFrom( SipsnHeaderPVisitedNetworkId *source );
PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdRetain( SipsnHeaderPVisitedNetworkId *obj );
PB_API void                          sipsnHeaderPVisitedNetworkIdRelease( SipsnHeaderPVisitedNetworkId *obj );
PB_API PbObj                        *sipsnHeaderPVisitedNetworkIdObj( SipsnHeaderPVisitedNetworkId *obj );
PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdFrom( PbObj *obj );
PB_API PbSort                       *sipsnHeaderPVisitedNetworkIdSort( void );
PB_API PbString                     *sipsnHeaderPVisitedNetworkIdToString( SipsnHeaderPVisitedNetworkId *obj );
PB_API int64_t sipsnHeaderPVisitedNetworkIdCompare( SipsnHeaderPVisitedNetworkId *a, SipsnHeaderPVisitedNetworkId *b );
PB_API bool    sipsnHeaderPVisitedNetworkIdEquals( SipsnHeaderPVisitedNetworkId *a, SipsnHeaderPVisitedNetworkId *b );

PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader           *sipsnHeaderPVisitedNetworkIdEncode( SipsnHeaderPVisitedNetworkId *hdr );
PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPVisitedNetworkIdEncodeToMessage( SipsnHeaderPVisitedNetworkId *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPVisitedNetworkIdPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPVisitedNetworkIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPVisitedNetworkIdStore( SipsnHeaderPVisitedNetworkId *hdr );
PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Networks, Network, SipsnVisitedNetwork ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPVisitedNetworkIdNetworksLength( SipsnHeaderPVisitedNetworkId *hdr );
PB_API void    sipsnHeaderPVisitedNetworkIdAppendNetwork( SipsnHeaderPVisitedNetworkId **hdr,
                                                          SipsnVisitedNetwork           *visitedNetwork );
PB_API void    sipsnHeaderPVisitedNetworkIdPrependNetwork( SipsnHeaderPVisitedNetworkId **hdr,
                                                           SipsnVisitedNetwork           *visitedNetwork );
PB_API void    sipsnHeaderPVisitedNetworkIdInsertNetwork( SipsnHeaderPVisitedNetworkId **hdr, int64_t index,
                                                          SipsnVisitedNetwork *visitedNetwork );
PB_API void    sipsnHeaderPVisitedNetworkIdSetNetworkAt( SipsnHeaderPVisitedNetworkId **hdr, int64_t index,
                                                         SipsnVisitedNetwork *visitedNetwork );
PB_API void    sipsnHeaderPVisitedNetworkIdDelNetworkAt( SipsnHeaderPVisitedNetworkId **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPVisitedNetworkId *sipsnHeaderPVisitedNetworkIdCreate( void );
PB_API SipsnVisitedNetwork          *sipsnHeaderPVisitedNetworkIdTryDecodeNetworkAt( SipsnHeaderPVisitedNetworkId *hdr,
                                                                                     int64_t                       index );
PB_API void                          sipsnHeaderPVisitedNetworkIdClearNetworks( SipsnHeaderPVisitedNetworkId **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
