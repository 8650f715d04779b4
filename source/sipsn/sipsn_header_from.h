/* SipsnHeaderFrom: the From header field, RFC 3261 section 20.20, with the epid of some endpoints; one address.
 *
 * Example: From: "Alice" <sip:alice@example.com>;tag=1928301774;epid=00f4a1;lang=en
 *
 *     From = ( name-addr / addr-spec ) *( SEMI ( "tag" EQUAL token / "epid" EQUAL epid / generic-param ) )
 *
 *     iri             an IRI, converted from and to a URI on the wire; never absent
 *     display name    free text, without quotes and escapes; optional
 *     tag             a token, kept as written; optional
 *     epid            1 to 16 token characters, kept as written; optional
 *     generic params  every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The parameters of a bare address are
 * the header field's. The address is always written in angle brackets. On the wire a member that is present takes the
 * place of a generic parameter of its name. Getters return a new reference, null when the member is absent. Setters and
 * deleters replace *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_FROM_H
#define SIPSN_HEADER_FROM_H

#include "sipsn_display_name.h"
#include "sipsn_epid.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_tag.h"
#include "sipsn_uri.h"

struct SipsnHeaderTo;

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderFrom ), see sipsn_header.h */
typedef struct SipsnHeaderFrom SipsnHeaderFrom;

PB_API SipsnHeaderFrom *sipsnHeaderFromCreateFrom( SipsnHeaderFrom *source );
PB_API SipsnHeaderFrom *sipsnHeaderFromRetain( SipsnHeaderFrom *obj );
PB_API void             sipsnHeaderFromRelease( SipsnHeaderFrom *obj );
PB_API PbObj           *sipsnHeaderFromObj( SipsnHeaderFrom *obj );
PB_API SipsnHeaderFrom *sipsnHeaderFromFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderFromSort( void );
PB_API PbString        *sipsnHeaderFromToString( SipsnHeaderFrom *obj );
PB_API int64_t          sipsnHeaderFromCompare( SipsnHeaderFrom *a, SipsnHeaderFrom *b );
PB_API bool             sipsnHeaderFromEquals( SipsnHeaderFrom *a, SipsnHeaderFrom *b );

PB_API SipsnHeaderFrom    *sipsnHeaderFromTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderFromEncode( SipsnHeaderFrom *hdr );
PB_API SipsnHeaderFrom    *sipsnHeaderFromTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderFromEncodeToMessage( SipsnHeaderFrom *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderFromPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderFromRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderFromStore( SipsnHeaderFrom *hdr );
PB_API SipsnHeaderFrom    *sipsnHeaderFromTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderFrom *sipsnHeaderFromCreate( PbString *iri );

/* The same address and parameters. The tag goes along. */
PB_API SipsnHeaderFrom *sipsnHeaderFromCreateFromHeaderTo( struct SipsnHeaderTo *hdrTo );

PB_API PbString *sipsnHeaderFromIri( SipsnHeaderFrom *hdr );
PB_API void      sipsnHeaderFromSetIri( SipsnHeaderFrom **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderFromTryDecodeUri( SipsnHeaderFrom *hdr );
PB_API void      sipsnHeaderFromSetUri( SipsnHeaderFrom **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderFromDisplayName( SipsnHeaderFrom *hdr );
PB_API bool      sipsnHeaderFromHasDisplayName( SipsnHeaderFrom *hdr );
PB_API void      sipsnHeaderFromSetDisplayName( SipsnHeaderFrom **hdr, PbString *displayName );
PB_API void      sipsnHeaderFromDelDisplayName( SipsnHeaderFrom **hdr );

PB_API PbString *sipsnHeaderFromTag( SipsnHeaderFrom *hdr );
PB_API bool      sipsnHeaderFromHasTag( SipsnHeaderFrom *hdr );
PB_API void      sipsnHeaderFromSetTag( SipsnHeaderFrom **hdr, PbString *tag );
PB_API void      sipsnHeaderFromDelTag( SipsnHeaderFrom **hdr );

PB_API PbString *sipsnHeaderFromEpid( SipsnHeaderFrom *hdr );
PB_API bool      sipsnHeaderFromHasEpid( SipsnHeaderFrom *hdr );
PB_API void      sipsnHeaderFromSetEpid( SipsnHeaderFrom **hdr, PbString *epid );
PB_API void      sipsnHeaderFromDelEpid( SipsnHeaderFrom **hdr );

PB_API SipsnGenericParams *sipsnHeaderFromGenericParams( SipsnHeaderFrom *hdr );
PB_API void                sipsnHeaderFromSetGenericParams( SipsnHeaderFrom **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
