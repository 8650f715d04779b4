/* SipsnHeaderCellularNetworkInfo: the Cellular-Network-Info header field, 3GPP TS 24.229; the cell of a user on
 * another access.
 *
 * Example: Cellular-Network-Info: 3GPP-E-UTRAN-FDD;cell-info-age=10;utran-cell-id-3gpp=2620100010000001;lang=en
 *
 *     Cellular-Network-Info = token *( SEMI ( "cell-info-age" EQUAL 1*DIGIT / access-info ) )
 *
 *     access type         a token such as "3GPP-E-UTRAN-FDD", kept as written; never absent
 *     cell info age       how old the information is, in seconds; optional
 *     utran cell id3gpp   the cell, a token or a quoted string; optional
 *     generic params      every other parameter; never absent, may be empty
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_CELLULAR_NETWORK_INFO_H
#define SIPSN_HEADER_CELLULAR_NETWORK_INFO_H

#include "sipsn_delta_seconds.h"
#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderCellularNetworkInfo ), see sipsn_header.h */
typedef struct SipsnHeaderCellularNetworkInfo SipsnHeaderCellularNetworkInfo;

PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoCreateFrom(
    SipsnHeaderCellularNetworkInfo *source );
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoRetain( SipsnHeaderCellularNetworkInfo *obj );
PB_API void                            sipsnHeaderCellularNetworkInfoRelease( SipsnHeaderCellularNetworkInfo *obj );
PB_API PbObj                          *sipsnHeaderCellularNetworkInfoObj( SipsnHeaderCellularNetworkInfo *obj );
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoFrom( PbObj *obj );
PB_API PbSort                         *sipsnHeaderCellularNetworkInfoSort( void );
PB_API PbString                       *sipsnHeaderCellularNetworkInfoToString( SipsnHeaderCellularNetworkInfo *obj );
PB_API int64_t                         sipsnHeaderCellularNetworkInfoCompare( SipsnHeaderCellularNetworkInfo *a,
                                                                              SipsnHeaderCellularNetworkInfo *b );
PB_API bool                            sipsnHeaderCellularNetworkInfoEquals( SipsnHeaderCellularNetworkInfo *a,
                                                                             SipsnHeaderCellularNetworkInfo *b );

PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader             *sipsnHeaderCellularNetworkInfoEncode( SipsnHeaderCellularNetworkInfo *hdr );
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void sipsnHeaderCellularNetworkInfoEncodeToMessage( SipsnHeaderCellularNetworkInfo *hdr, SipsnMessage **msg );
PB_API bool sipsnHeaderCellularNetworkInfoPresentInMessage( SipsnMessage *msg );
PB_API void sipsnHeaderCellularNetworkInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                        *sipsnHeaderCellularNetworkInfoStore( SipsnHeaderCellularNetworkInfo *hdr );
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoCreate( PbString *accessType );
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoCreateCstr( const char *accessType,
                                                                                 int64_t     length );
PB_API SipsnHeaderCellularNetworkInfo *sipsnHeaderCellularNetworkInfoCreateWcstr( const wchar_t *accessType,
                                                                                  int64_t        length );

PB_API PbString *sipsnHeaderCellularNetworkInfoAccessType( SipsnHeaderCellularNetworkInfo *hdr );
PB_API void sipsnHeaderCellularNetworkInfoSetAccessType( SipsnHeaderCellularNetworkInfo **hdr, PbString *accessType );
PB_API void sipsnHeaderCellularNetworkInfoSetAccessTypeCstr( SipsnHeaderCellularNetworkInfo **hdr,
                                                             const char *accessType, int64_t length );
PB_API void sipsnHeaderCellularNetworkInfoSetAccessTypeWcstr( SipsnHeaderCellularNetworkInfo **hdr,
                                                              const wchar_t *accessType, int64_t length );

PB_API int64_t sipsnHeaderCellularNetworkInfoCellInfoAge( SipsnHeaderCellularNetworkInfo *hdr );
PB_API bool    sipsnHeaderCellularNetworkInfoHasCellInfoAge( SipsnHeaderCellularNetworkInfo *hdr );
PB_API void sipsnHeaderCellularNetworkInfoSetCellInfoAge( SipsnHeaderCellularNetworkInfo **hdr, int64_t cellInfoAge );
PB_API void sipsnHeaderCellularNetworkInfoDelCellInfoAge( SipsnHeaderCellularNetworkInfo **hdr );

PB_API PbString *sipsnHeaderCellularNetworkInfoUtranCellId3gpp( SipsnHeaderCellularNetworkInfo *hdr );
PB_API bool      sipsnHeaderCellularNetworkInfoHasUtranCellId3gpp( SipsnHeaderCellularNetworkInfo *hdr );
PB_API void      sipsnHeaderCellularNetworkInfoSetUtranCellId3gpp( SipsnHeaderCellularNetworkInfo **hdr,
                                                                   PbString                        *utranCellId3gpp );
PB_API void      sipsnHeaderCellularNetworkInfoSetUtranCellId3gppCstr( SipsnHeaderCellularNetworkInfo **hdr,
                                                                       const char *utranCellId3gpp, int64_t length );
PB_API void      sipsnHeaderCellularNetworkInfoSetUtranCellId3gppWcstr( SipsnHeaderCellularNetworkInfo **hdr,
                                                                        const wchar_t *utranCellId3gpp, int64_t length );
PB_API void      sipsnHeaderCellularNetworkInfoDelUtranCellId3gpp( SipsnHeaderCellularNetworkInfo **hdr );

PB_API SipsnGenericParams *sipsnHeaderCellularNetworkInfoGenericParams( SipsnHeaderCellularNetworkInfo *hdr );
PB_API void                sipsnHeaderCellularNetworkInfoSetGenericParams( SipsnHeaderCellularNetworkInfo **hdr,
                                                                           SipsnGenericParams              *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
