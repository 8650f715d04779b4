/* SipsnHeaderPChargeInfo: the P-Charge-Info header field, RFC 8496 section 6; who is to be charged.
 *
 * Example: P-Charge-Info: "Bob" <sip:+14075550134@example.net;user=phone>;npi=ISDN
 *
 *     P-Charge-Info = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     generic params   the parameters; never absent, may be empty
 *
 * The RFC gives the field no parameters; they are kept because senders add them. Only the last line of the header
 * field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_CHARGE_INFO_H
#define SIPSN_HEADER_P_CHARGE_INFO_H

#include "sipsn_display_name.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPChargeInfo ), see sipsn_header.h */
typedef struct SipsnHeaderPChargeInfo SipsnHeaderPChargeInfo;

PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoCreateFrom( SipsnHeaderPChargeInfo *source );
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoRetain( SipsnHeaderPChargeInfo *obj );
PB_API void                    sipsnHeaderPChargeInfoRelease( SipsnHeaderPChargeInfo *obj );
PB_API PbObj                  *sipsnHeaderPChargeInfoObj( SipsnHeaderPChargeInfo *obj );
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderPChargeInfoSort( void );
PB_API PbString               *sipsnHeaderPChargeInfoToString( SipsnHeaderPChargeInfo *obj );
PB_API int64_t                 sipsnHeaderPChargeInfoCompare( SipsnHeaderPChargeInfo *a, SipsnHeaderPChargeInfo *b );
PB_API bool                    sipsnHeaderPChargeInfoEquals( SipsnHeaderPChargeInfo *a, SipsnHeaderPChargeInfo *b );

PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderPChargeInfoEncode( SipsnHeaderPChargeInfo *hdr );
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPChargeInfoEncodeToMessage( SipsnHeaderPChargeInfo *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderPChargeInfoPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPChargeInfoRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderPChargeInfoStore( SipsnHeaderPChargeInfo *hdr );
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoCreate( PbString *iri );
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderPChargeInfo *sipsnHeaderPChargeInfoCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPChargeInfoIri( SipsnHeaderPChargeInfo *hdr );
PB_API void      sipsnHeaderPChargeInfoSetIri( SipsnHeaderPChargeInfo **hdr, PbString *iri );
PB_API void      sipsnHeaderPChargeInfoSetIriCstr( SipsnHeaderPChargeInfo **hdr, const char *iri, int64_t length );
PB_API void      sipsnHeaderPChargeInfoSetIriWcstr( SipsnHeaderPChargeInfo **hdr, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPChargeInfoDisplayName( SipsnHeaderPChargeInfo *hdr );
PB_API bool      sipsnHeaderPChargeInfoHasDisplayName( SipsnHeaderPChargeInfo *hdr );
PB_API void      sipsnHeaderPChargeInfoSetDisplayName( SipsnHeaderPChargeInfo **hdr, PbString *displayName );
PB_API void      sipsnHeaderPChargeInfoSetDisplayNameCstr( SipsnHeaderPChargeInfo **hdr, const char *displayName,
                                                           int64_t length );
PB_API void      sipsnHeaderPChargeInfoSetDisplayNameWcstr( SipsnHeaderPChargeInfo **hdr, const wchar_t *displayName,
                                                            int64_t length );
PB_API void      sipsnHeaderPChargeInfoDelDisplayName( SipsnHeaderPChargeInfo **hdr );

PB_API SipsnGenericParams *sipsnHeaderPChargeInfoGenericParams( SipsnHeaderPChargeInfo *hdr );
PB_API void sipsnHeaderPChargeInfoSetGenericParams( SipsnHeaderPChargeInfo **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderPChargeInfoTryDecodeUri( SipsnHeaderPChargeInfo *hdr );
PB_API void      sipsnHeaderPChargeInfoSetUri( SipsnHeaderPChargeInfo **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
