/* SipsnHeaderPCalledPartyId: the P-Called-Party-ID header field, RFC 7315 section 4.2; one address.
 *
 * Example: P-Called-Party-Id: "Bob" <sip:bob-business@example.com>;lang=en
 *
 *     P-Called-Party-ID = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri             an IRI, converted from and to a URI on the wire; never absent
 *     display name    free text, without quotes and escapes; optional
 *     generic params  the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The address is always written in
 * angle brackets. Getters return a new reference, null when the member is absent. Setters and deleters replace *hdr by
 * a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_P_CALLED_PARTY_ID_H
#define SIPSN_HEADER_P_CALLED_PARTY_ID_H

#include "sipsn_display_name.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPCalledPartyId ), see sipsn_header.h */
typedef struct SipsnHeaderPCalledPartyId SipsnHeaderPCalledPartyId;

PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdCreateFrom( SipsnHeaderPCalledPartyId *source );
PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdRetain( SipsnHeaderPCalledPartyId *obj );
PB_API void                       sipsnHeaderPCalledPartyIdRelease( SipsnHeaderPCalledPartyId *obj );
PB_API PbObj                     *sipsnHeaderPCalledPartyIdObj( SipsnHeaderPCalledPartyId *obj );
PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderPCalledPartyIdSort( void );
PB_API PbString                  *sipsnHeaderPCalledPartyIdToString( SipsnHeaderPCalledPartyId *obj );
PB_API int64_t sipsnHeaderPCalledPartyIdCompare( SipsnHeaderPCalledPartyId *a, SipsnHeaderPCalledPartyId *b );
PB_API bool    sipsnHeaderPCalledPartyIdEquals( SipsnHeaderPCalledPartyId *a, SipsnHeaderPCalledPartyId *b );

PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderPCalledPartyIdEncode( SipsnHeaderPCalledPartyId *hdr );
PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPCalledPartyIdEncodeToMessage( SipsnHeaderPCalledPartyId *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPCalledPartyIdPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPCalledPartyIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPCalledPartyIdStore( SipsnHeaderPCalledPartyId *hdr );
PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdCreate( PbString *iri );

PB_API PbString *sipsnHeaderPCalledPartyIdIri( SipsnHeaderPCalledPartyId *hdr );
PB_API void      sipsnHeaderPCalledPartyIdSetIri( SipsnHeaderPCalledPartyId **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderPCalledPartyIdTryDecodeUri( SipsnHeaderPCalledPartyId *hdr );
PB_API void      sipsnHeaderPCalledPartyIdSetUri( SipsnHeaderPCalledPartyId **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderPCalledPartyIdDisplayName( SipsnHeaderPCalledPartyId *hdr );
PB_API bool      sipsnHeaderPCalledPartyIdHasDisplayName( SipsnHeaderPCalledPartyId *hdr );
PB_API void      sipsnHeaderPCalledPartyIdSetDisplayName( SipsnHeaderPCalledPartyId **hdr, PbString *displayName );
PB_API void      sipsnHeaderPCalledPartyIdDelDisplayName( SipsnHeaderPCalledPartyId **hdr );

PB_API SipsnGenericParams *sipsnHeaderPCalledPartyIdGenericParams( SipsnHeaderPCalledPartyId *hdr );
PB_API void                sipsnHeaderPCalledPartyIdSetGenericParams( SipsnHeaderPCalledPartyId **hdr,
                                                                      SipsnGenericParams         *genericParams );

PB_END_DECLS
#endif
