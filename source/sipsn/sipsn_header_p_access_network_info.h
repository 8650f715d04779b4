/* SipsnHeaderPAccessNetworkInfo: the P-Access-Network-Info header field, RFC 7315 section 5.4; a list of networks.
 *
 * Example: P-Access-Network-Info: 3GPP-E-UTRAN-FDD;utran-cell-id-3gpp=2620100010000001
 *
 * Each network is kept as its text, and decoded when TryDecodeAccessNetworkAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_P_ACCESS_NETWORK_INFO_H
#define SIPSN_HEADER_P_ACCESS_NETWORK_INFO_H

#include "sipsn_access_network.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPAccessNetworkInfo ), see sipsn_header.h */
typedef struct SipsnHeaderPAccessNetworkInfo SipsnHeaderPAccessNetworkInfo;

PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoCreateFrom( SipsnHeaderPAccessNetworkInfo *source );
PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoRetain( SipsnHeaderPAccessNetworkInfo *obj );
PB_API void                           sipsnHeaderPAccessNetworkInfoRelease( SipsnHeaderPAccessNetworkInfo *obj );
PB_API PbObj                         *sipsnHeaderPAccessNetworkInfoObj( SipsnHeaderPAccessNetworkInfo *obj );
PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderPAccessNetworkInfoSort( void );
PB_API PbString                      *sipsnHeaderPAccessNetworkInfoToString( SipsnHeaderPAccessNetworkInfo *obj );
PB_API int64_t                        sipsnHeaderPAccessNetworkInfoCompare( SipsnHeaderPAccessNetworkInfo *a,
                                                                            SipsnHeaderPAccessNetworkInfo *b );
PB_API bool sipsnHeaderPAccessNetworkInfoEquals( SipsnHeaderPAccessNetworkInfo *a, SipsnHeaderPAccessNetworkInfo *b );

PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderPAccessNetworkInfoEncode( SipsnHeaderPAccessNetworkInfo *hdr );
PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAccessNetworkInfoEncodeToMessage( SipsnHeaderPAccessNetworkInfo *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPAccessNetworkInfoPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPAccessNetworkInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPAccessNetworkInfoStore( SipsnHeaderPAccessNetworkInfo *hdr );
PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( AccessNetworks, AccessNetwork, SipsnAccessNetwork ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPAccessNetworkInfoAccessNetworksLength( SipsnHeaderPAccessNetworkInfo *hdr );
PB_API void    sipsnHeaderPAccessNetworkInfoAppendAccessNetwork( SipsnHeaderPAccessNetworkInfo **hdr,
                                                                 SipsnAccessNetwork             *accessNetwork );
PB_API void    sipsnHeaderPAccessNetworkInfoPrependAccessNetwork( SipsnHeaderPAccessNetworkInfo **hdr,
                                                                  SipsnAccessNetwork             *accessNetwork );
PB_API void    sipsnHeaderPAccessNetworkInfoInsertAccessNetwork( SipsnHeaderPAccessNetworkInfo **hdr, int64_t index,
                                                                 SipsnAccessNetwork *accessNetwork );
PB_API void    sipsnHeaderPAccessNetworkInfoSetAccessNetworkAt( SipsnHeaderPAccessNetworkInfo **hdr, int64_t index,
                                                                SipsnAccessNetwork *accessNetwork );
PB_API void    sipsnHeaderPAccessNetworkInfoDelAccessNetworkAt( SipsnHeaderPAccessNetworkInfo **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPAccessNetworkInfo *sipsnHeaderPAccessNetworkInfoCreate( void );
PB_API SipsnAccessNetwork *sipsnHeaderPAccessNetworkInfoTryDecodeAccessNetworkAt( SipsnHeaderPAccessNetworkInfo *hdr,
                                                                                  int64_t index );
PB_API void                sipsnHeaderPAccessNetworkInfoClearAccessNetworks( SipsnHeaderPAccessNetworkInfo **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
