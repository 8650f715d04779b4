/* SipsnHeaderPDcsTracePartyId: the P-DCS-Trace-Party-ID header field, RFC 5503 section 5.1; who made a call that is to
 * be traced.
 *
 * Example: P-Dcs-Trace-Party-Id: "Eve" <sip:+12345678912@example.com;user=phone>;timestamp=3434688831.2327;lang=en
 *
 *     P-DCS-Trace-Party-ID = ( name-addr / addr-spec ) *( SEMI ( "timestamp" EQUAL token / generic-param ) )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     timestamp        seconds since 1900 with a fraction or none (NTP), a token; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_DCS_TRACE_PARTY_ID_H
#define SIPSN_HEADER_P_DCS_TRACE_PARTY_ID_H

#include "sipsn_display_name.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_token.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPDcsTracePartyId ), see sipsn_header.h */
typedef struct SipsnHeaderPDcsTracePartyId SipsnHeaderPDcsTracePartyId;

PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdCreateFrom( SipsnHeaderPDcsTracePartyId *source );
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdRetain( SipsnHeaderPDcsTracePartyId *obj );
PB_API void                         sipsnHeaderPDcsTracePartyIdRelease( SipsnHeaderPDcsTracePartyId *obj );
PB_API PbObj                       *sipsnHeaderPDcsTracePartyIdObj( SipsnHeaderPDcsTracePartyId *obj );
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdFrom( PbObj *obj );
PB_API PbSort                      *sipsnHeaderPDcsTracePartyIdSort( void );
PB_API PbString                    *sipsnHeaderPDcsTracePartyIdToString( SipsnHeaderPDcsTracePartyId *obj );
PB_API int64_t sipsnHeaderPDcsTracePartyIdCompare( SipsnHeaderPDcsTracePartyId *a, SipsnHeaderPDcsTracePartyId *b );
PB_API bool    sipsnHeaderPDcsTracePartyIdEquals( SipsnHeaderPDcsTracePartyId *a, SipsnHeaderPDcsTracePartyId *b );

PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader          *sipsnHeaderPDcsTracePartyIdEncode( SipsnHeaderPDcsTracePartyId *hdr );
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPDcsTracePartyIdEncodeToMessage( SipsnHeaderPDcsTracePartyId *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPDcsTracePartyIdPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPDcsTracePartyIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPDcsTracePartyIdStore( SipsnHeaderPDcsTracePartyId *hdr );
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdCreate( PbString *iri );
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderPDcsTracePartyId *sipsnHeaderPDcsTracePartyIdCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPDcsTracePartyIdIri( SipsnHeaderPDcsTracePartyId *hdr );
PB_API void      sipsnHeaderPDcsTracePartyIdSetIri( SipsnHeaderPDcsTracePartyId **hdr, PbString *iri );
PB_API void sipsnHeaderPDcsTracePartyIdSetIriCstr( SipsnHeaderPDcsTracePartyId **hdr, const char *iri, int64_t length );
PB_API void sipsnHeaderPDcsTracePartyIdSetIriWcstr( SipsnHeaderPDcsTracePartyId **hdr, const wchar_t *iri,
                                                    int64_t length );

PB_API PbString *sipsnHeaderPDcsTracePartyIdDisplayName( SipsnHeaderPDcsTracePartyId *hdr );
PB_API bool      sipsnHeaderPDcsTracePartyIdHasDisplayName( SipsnHeaderPDcsTracePartyId *hdr );
PB_API void      sipsnHeaderPDcsTracePartyIdSetDisplayName( SipsnHeaderPDcsTracePartyId **hdr, PbString *displayName );
PB_API void sipsnHeaderPDcsTracePartyIdSetDisplayNameCstr( SipsnHeaderPDcsTracePartyId **hdr, const char *displayName,
                                                           int64_t length );
PB_API void sipsnHeaderPDcsTracePartyIdSetDisplayNameWcstr( SipsnHeaderPDcsTracePartyId **hdr,
                                                            const wchar_t *displayName, int64_t length );
PB_API void sipsnHeaderPDcsTracePartyIdDelDisplayName( SipsnHeaderPDcsTracePartyId **hdr );

PB_API PbString *sipsnHeaderPDcsTracePartyIdTimestamp( SipsnHeaderPDcsTracePartyId *hdr );
PB_API bool      sipsnHeaderPDcsTracePartyIdHasTimestamp( SipsnHeaderPDcsTracePartyId *hdr );
PB_API void      sipsnHeaderPDcsTracePartyIdSetTimestamp( SipsnHeaderPDcsTracePartyId **hdr, PbString *timestamp );
PB_API void      sipsnHeaderPDcsTracePartyIdSetTimestampCstr( SipsnHeaderPDcsTracePartyId **hdr, const char *timestamp,
                                                              int64_t length );
PB_API void sipsnHeaderPDcsTracePartyIdSetTimestampWcstr( SipsnHeaderPDcsTracePartyId **hdr, const wchar_t *timestamp,
                                                          int64_t length );
PB_API void sipsnHeaderPDcsTracePartyIdDelTimestamp( SipsnHeaderPDcsTracePartyId **hdr );

PB_API SipsnGenericParams *sipsnHeaderPDcsTracePartyIdGenericParams( SipsnHeaderPDcsTracePartyId *hdr );
PB_API void                sipsnHeaderPDcsTracePartyIdSetGenericParams( SipsnHeaderPDcsTracePartyId **hdr,
                                                                        SipsnGenericParams           *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderPDcsTracePartyIdTryDecodeUri( SipsnHeaderPDcsTracePartyId *hdr );
PB_API void      sipsnHeaderPDcsTracePartyIdSetUri( SipsnHeaderPDcsTracePartyId **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
