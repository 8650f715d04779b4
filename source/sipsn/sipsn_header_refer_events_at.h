/* SipsnHeaderReferEventsAt: the Refer-Events-At header field, RFC 7614 section 4.8; where the events of a REFER are.
 *
 * Example: Refer-Events-At: <sips:vPT3izGmo8NTxaPADRZvEAY22BKx@example.com;gr>;lang=en
 *
 *     Refer-Events-At = LAQUOT URI RAQUOT *( SEMI generic-param )
 *
 *     iri              an address, an IRI (a URI on the wire), always in angle brackets; never
 *                      absent
 *     generic params   the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_REFER_EVENTS_AT_H
#define SIPSN_HEADER_REFER_EVENTS_AT_H

#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReferEventsAt ), see sipsn_header.h */
typedef struct SipsnHeaderReferEventsAt SipsnHeaderReferEventsAt;

PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtCreateFrom( SipsnHeaderReferEventsAt *source );
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtRetain( SipsnHeaderReferEventsAt *obj );
PB_API void                      sipsnHeaderReferEventsAtRelease( SipsnHeaderReferEventsAt *obj );
PB_API PbObj                    *sipsnHeaderReferEventsAtObj( SipsnHeaderReferEventsAt *obj );
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderReferEventsAtSort( void );
PB_API PbString                 *sipsnHeaderReferEventsAtToString( SipsnHeaderReferEventsAt *obj );
PB_API int64_t sipsnHeaderReferEventsAtCompare( SipsnHeaderReferEventsAt *a, SipsnHeaderReferEventsAt *b );
PB_API bool    sipsnHeaderReferEventsAtEquals( SipsnHeaderReferEventsAt *a, SipsnHeaderReferEventsAt *b );

PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderReferEventsAtEncode( SipsnHeaderReferEventsAt *hdr );
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderReferEventsAtEncodeToMessage( SipsnHeaderReferEventsAt *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderReferEventsAtPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderReferEventsAtRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderReferEventsAtStore( SipsnHeaderReferEventsAt *hdr );
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtCreate( PbString *iri );
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderReferEventsAt *sipsnHeaderReferEventsAtCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderReferEventsAtIri( SipsnHeaderReferEventsAt *hdr );
PB_API void      sipsnHeaderReferEventsAtSetIri( SipsnHeaderReferEventsAt **hdr, PbString *iri );
PB_API void      sipsnHeaderReferEventsAtSetIriCstr( SipsnHeaderReferEventsAt **hdr, const char *iri, int64_t length );
PB_API void sipsnHeaderReferEventsAtSetIriWcstr( SipsnHeaderReferEventsAt **hdr, const wchar_t *iri, int64_t length );

PB_API SipsnGenericParams *sipsnHeaderReferEventsAtGenericParams( SipsnHeaderReferEventsAt *hdr );
PB_API void                sipsnHeaderReferEventsAtSetGenericParams( SipsnHeaderReferEventsAt **hdr,
                                                                     SipsnGenericParams        *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderReferEventsAtTryDecodeUri( SipsnHeaderReferEventsAt *hdr );
PB_API void      sipsnHeaderReferEventsAtSetUri( SipsnHeaderReferEventsAt **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
