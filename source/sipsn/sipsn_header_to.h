/* SipsnHeaderTo: the To header field, RFC 3261 section 20.39, with the epid of some endpoints; one address.
 *
 * Example: To: "Bob" <sip:bob@example.com>;tag=a6c85cf;epid=00f4a1;lang=en
 *
 *     To = ( name-addr / addr-spec ) *( SEMI ( "tag" EQUAL token / "epid" EQUAL epid / generic-param ) )
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
#ifndef SIPSN_HEADER_TO_H
#define SIPSN_HEADER_TO_H

#include "sipsn_display_name.h"
#include "sipsn_epid.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_tag.h"
#include "sipsn_uri.h"

struct SipsnHeaderFrom;

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderTo ), see sipsn_header.h */
typedef struct SipsnHeaderTo SipsnHeaderTo;

PB_API SipsnHeaderTo *sipsnHeaderToCreateFrom( SipsnHeaderTo *source );
PB_API SipsnHeaderTo *sipsnHeaderToRetain( SipsnHeaderTo *obj );
PB_API void           sipsnHeaderToRelease( SipsnHeaderTo *obj );
PB_API PbObj         *sipsnHeaderToObj( SipsnHeaderTo *obj );
PB_API SipsnHeaderTo *sipsnHeaderToFrom( PbObj *obj );
PB_API PbSort        *sipsnHeaderToSort( void );
PB_API PbString      *sipsnHeaderToToString( SipsnHeaderTo *obj );
PB_API int64_t        sipsnHeaderToCompare( SipsnHeaderTo *a, SipsnHeaderTo *b );
PB_API bool           sipsnHeaderToEquals( SipsnHeaderTo *a, SipsnHeaderTo *b );

PB_API SipsnHeaderTo      *sipsnHeaderToTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderToEncode( SipsnHeaderTo *hdr );
PB_API SipsnHeaderTo      *sipsnHeaderToTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderToEncodeToMessage( SipsnHeaderTo *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderToPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderToRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderToStore( SipsnHeaderTo *hdr );
PB_API SipsnHeaderTo      *sipsnHeaderToTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderTo *sipsnHeaderToCreate( PbString *iri );

/* The same address and parameters. The tag goes along: whoever begins a dialog deletes it. */
PB_API SipsnHeaderTo *sipsnHeaderToCreateFromHeaderFrom( struct SipsnHeaderFrom *hdrFrom );

PB_API PbString *sipsnHeaderToIri( SipsnHeaderTo *hdr );
PB_API void      sipsnHeaderToSetIri( SipsnHeaderTo **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderToTryDecodeUri( SipsnHeaderTo *hdr );
PB_API void      sipsnHeaderToSetUri( SipsnHeaderTo **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderToDisplayName( SipsnHeaderTo *hdr );
PB_API bool      sipsnHeaderToHasDisplayName( SipsnHeaderTo *hdr );
PB_API void      sipsnHeaderToSetDisplayName( SipsnHeaderTo **hdr, PbString *displayName );
PB_API void      sipsnHeaderToDelDisplayName( SipsnHeaderTo **hdr );

PB_API PbString *sipsnHeaderToTag( SipsnHeaderTo *hdr );
PB_API bool      sipsnHeaderToHasTag( SipsnHeaderTo *hdr );
PB_API void      sipsnHeaderToSetTag( SipsnHeaderTo **hdr, PbString *tag );
PB_API void      sipsnHeaderToDelTag( SipsnHeaderTo **hdr );

PB_API PbString *sipsnHeaderToEpid( SipsnHeaderTo *hdr );
PB_API bool      sipsnHeaderToHasEpid( SipsnHeaderTo *hdr );
PB_API void      sipsnHeaderToSetEpid( SipsnHeaderTo **hdr, PbString *epid );
PB_API void      sipsnHeaderToDelEpid( SipsnHeaderTo **hdr );

PB_API SipsnGenericParams *sipsnHeaderToGenericParams( SipsnHeaderTo *hdr );
PB_API void                sipsnHeaderToSetGenericParams( SipsnHeaderTo **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
