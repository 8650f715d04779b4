/* SipsnHeaderRecvInfo: the Recv-Info header field, RFC 6086 section 9.2; a list of packages.
 *
 * Example: Recv-Info: bar;v=1
 *
 * Each package is kept as its text, and decoded when TryDecodeInfoPackageAt asks for it. A header field without
 * lines decodes to an empty list. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_RECV_INFO_H
#define SIPSN_HEADER_RECV_INFO_H

#include "sipsn_header.h"
#include "sipsn_info_package.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRecvInfo ), see sipsn_header.h */
typedef struct SipsnHeaderRecvInfo SipsnHeaderRecvInfo;

PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoCreateFrom( SipsnHeaderRecvInfo *source );
PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoRetain( SipsnHeaderRecvInfo *obj );
PB_API void                 sipsnHeaderRecvInfoRelease( SipsnHeaderRecvInfo *obj );
PB_API PbObj               *sipsnHeaderRecvInfoObj( SipsnHeaderRecvInfo *obj );
PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderRecvInfoSort( void );
PB_API PbString            *sipsnHeaderRecvInfoToString( SipsnHeaderRecvInfo *obj );
PB_API int64_t              sipsnHeaderRecvInfoCompare( SipsnHeaderRecvInfo *a, SipsnHeaderRecvInfo *b );
PB_API bool                 sipsnHeaderRecvInfoEquals( SipsnHeaderRecvInfo *a, SipsnHeaderRecvInfo *b );

PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderRecvInfoEncode( SipsnHeaderRecvInfo *hdr );
PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderRecvInfoEncodeToMessage( SipsnHeaderRecvInfo *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderRecvInfoPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderRecvInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderRecvInfoStore( SipsnHeaderRecvInfo *hdr );
PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( InfoPackages, InfoPackage, SipsnInfoPackage ), see sipsn_header.h */
PB_API int64_t sipsnHeaderRecvInfoInfoPackagesLength( SipsnHeaderRecvInfo *hdr );
PB_API void    sipsnHeaderRecvInfoAppendInfoPackage( SipsnHeaderRecvInfo **hdr, SipsnInfoPackage *infoPackage );
PB_API void    sipsnHeaderRecvInfoPrependInfoPackage( SipsnHeaderRecvInfo **hdr, SipsnInfoPackage *infoPackage );
PB_API void    sipsnHeaderRecvInfoInsertInfoPackage( SipsnHeaderRecvInfo **hdr, int64_t index,
                                                     SipsnInfoPackage *infoPackage );
PB_API void    sipsnHeaderRecvInfoSetInfoPackageAt( SipsnHeaderRecvInfo **hdr, int64_t index,
                                                    SipsnInfoPackage *infoPackage );
PB_API void    sipsnHeaderRecvInfoDelInfoPackageAt( SipsnHeaderRecvInfo **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderRecvInfo *sipsnHeaderRecvInfoCreate( void );
PB_API SipsnInfoPackage    *sipsnHeaderRecvInfoTryDecodeInfoPackageAt( SipsnHeaderRecvInfo *hdr, int64_t index );
PB_API void                 sipsnHeaderRecvInfoClearInfoPackages( SipsnHeaderRecvInfo **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
