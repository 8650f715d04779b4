/* SipsnHeaderRemotePartyId: the Remote-Party-ID header field, draft-ietf-sip-privacy-04 section 5; one address.
 *
 * Example: Remote-Party-Id: "Alice" <sip:alice@example.com>;party=calling;privacy=full;screen=yes
 *
 *     Remote-Party-ID = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri             an IRI, converted from and to a URI on the wire; never absent
 *     display name    free text, without quotes and escapes; optional
 *     generic params  the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The address is always written in
 * angle brackets. Getters return a new reference, null when the member is absent. Setters and deleters replace *hdr by
 * a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_REMOTE_PARTY_ID_H
#define SIPSN_HEADER_REMOTE_PARTY_ID_H

#include "sipsn_display_name.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRemotePartyId ), see sipsn_header.h */
typedef struct SipsnHeaderRemotePartyId SipsnHeaderRemotePartyId;

PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdCreateFrom( SipsnHeaderRemotePartyId *source );
PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdRetain( SipsnHeaderRemotePartyId *obj );
PB_API void                      sipsnHeaderRemotePartyIdRelease( SipsnHeaderRemotePartyId *obj );
PB_API PbObj                    *sipsnHeaderRemotePartyIdObj( SipsnHeaderRemotePartyId *obj );
PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderRemotePartyIdSort( void );
PB_API PbString                 *sipsnHeaderRemotePartyIdToString( SipsnHeaderRemotePartyId *obj );
PB_API int64_t sipsnHeaderRemotePartyIdCompare( SipsnHeaderRemotePartyId *a, SipsnHeaderRemotePartyId *b );
PB_API bool    sipsnHeaderRemotePartyIdEquals( SipsnHeaderRemotePartyId *a, SipsnHeaderRemotePartyId *b );

PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderRemotePartyIdEncode( SipsnHeaderRemotePartyId *hdr );
PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRemotePartyIdEncodeToMessage( SipsnHeaderRemotePartyId *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderRemotePartyIdPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRemotePartyIdRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderRemotePartyIdStore( SipsnHeaderRemotePartyId *hdr );
PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdCreate( PbString *iri );

PB_API PbString *sipsnHeaderRemotePartyIdIri( SipsnHeaderRemotePartyId *hdr );
PB_API void      sipsnHeaderRemotePartyIdSetIri( SipsnHeaderRemotePartyId **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderRemotePartyIdTryDecodeUri( SipsnHeaderRemotePartyId *hdr );
PB_API void      sipsnHeaderRemotePartyIdSetUri( SipsnHeaderRemotePartyId **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderRemotePartyIdDisplayName( SipsnHeaderRemotePartyId *hdr );
PB_API bool      sipsnHeaderRemotePartyIdHasDisplayName( SipsnHeaderRemotePartyId *hdr );
PB_API void      sipsnHeaderRemotePartyIdSetDisplayName( SipsnHeaderRemotePartyId **hdr, PbString *displayName );
PB_API void      sipsnHeaderRemotePartyIdDelDisplayName( SipsnHeaderRemotePartyId **hdr );

PB_API SipsnGenericParams *sipsnHeaderRemotePartyIdGenericParams( SipsnHeaderRemotePartyId *hdr );
PB_API void                sipsnHeaderRemotePartyIdSetGenericParams( SipsnHeaderRemotePartyId **hdr,
                                                                     SipsnGenericParams        *genericParams );

PB_END_DECLS
#endif
