/* SipsnHeaderPDcsOsps: the P-DCS-OSPS header field, RFC 5503 section 6.1; what an operator does to a call.
 *
 * Example: P-Dcs-Osps: BLV
 *
 *     P-DCS-OSPS = token
 *
 *     osps tag   a token such as "BLV", "EI" or "RING", kept as written; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_DCS_OSPS_H
#define SIPSN_HEADER_P_DCS_OSPS_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPDcsOsps ), see sipsn_header.h */
typedef struct SipsnHeaderPDcsOsps SipsnHeaderPDcsOsps;

PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsCreateFrom( SipsnHeaderPDcsOsps *source );
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsRetain( SipsnHeaderPDcsOsps *obj );
PB_API void                 sipsnHeaderPDcsOspsRelease( SipsnHeaderPDcsOsps *obj );
PB_API PbObj               *sipsnHeaderPDcsOspsObj( SipsnHeaderPDcsOsps *obj );
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderPDcsOspsSort( void );
PB_API PbString            *sipsnHeaderPDcsOspsToString( SipsnHeaderPDcsOsps *obj );
PB_API int64_t              sipsnHeaderPDcsOspsCompare( SipsnHeaderPDcsOsps *a, SipsnHeaderPDcsOsps *b );
PB_API bool                 sipsnHeaderPDcsOspsEquals( SipsnHeaderPDcsOsps *a, SipsnHeaderPDcsOsps *b );

PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderPDcsOspsEncode( SipsnHeaderPDcsOsps *hdr );
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPDcsOspsEncodeToMessage( SipsnHeaderPDcsOsps *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderPDcsOspsPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPDcsOspsRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderPDcsOspsStore( SipsnHeaderPDcsOsps *hdr );
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsCreate( PbString *ospsTag );
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsCreateCstr( const char *ospsTag, int64_t length );
PB_API SipsnHeaderPDcsOsps *sipsnHeaderPDcsOspsCreateWcstr( const wchar_t *ospsTag, int64_t length );

PB_API PbString *sipsnHeaderPDcsOspsOspsTag( SipsnHeaderPDcsOsps *hdr );
PB_API void      sipsnHeaderPDcsOspsSetOspsTag( SipsnHeaderPDcsOsps **hdr, PbString *ospsTag );
PB_API void      sipsnHeaderPDcsOspsSetOspsTagCstr( SipsnHeaderPDcsOsps **hdr, const char *ospsTag, int64_t length );
PB_API void sipsnHeaderPDcsOspsSetOspsTagWcstr( SipsnHeaderPDcsOsps **hdr, const wchar_t *ospsTag, int64_t length );
/* ./dev lists: end */

PB_END_DECLS
#endif
