/* SipsnHeaderReplyTo: the Reply-To header field, RFC 3261 section 20.31; one address.
 *
 * Example: Reply-To: "Bob" <sip:bob@example.com>;lang=en
 *
 *     Reply-To = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri             an IRI, converted from and to a URI on the wire; never absent
 *     display name    free text, without quotes and escapes; optional
 *     generic params  the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The address is always written in
 * angle brackets. Getters return a new reference, null when the member is absent. Setters and deleters replace *hdr by
 * a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_REPLY_TO_H
#define SIPSN_HEADER_REPLY_TO_H

#include "sipsn_display_name.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReplyTo ), see sipsn_header.h */
typedef struct SipsnHeaderReplyTo SipsnHeaderReplyTo;

PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToCreateFrom( SipsnHeaderReplyTo *source );
PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToRetain( SipsnHeaderReplyTo *obj );
PB_API void                sipsnHeaderReplyToRelease( SipsnHeaderReplyTo *obj );
PB_API PbObj              *sipsnHeaderReplyToObj( SipsnHeaderReplyTo *obj );
PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderReplyToSort( void );
PB_API PbString           *sipsnHeaderReplyToToString( SipsnHeaderReplyTo *obj );
PB_API int64_t             sipsnHeaderReplyToCompare( SipsnHeaderReplyTo *a, SipsnHeaderReplyTo *b );
PB_API bool                sipsnHeaderReplyToEquals( SipsnHeaderReplyTo *a, SipsnHeaderReplyTo *b );

PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderReplyToEncode( SipsnHeaderReplyTo *hdr );
PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderReplyToEncodeToMessage( SipsnHeaderReplyTo *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderReplyToPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderReplyToRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderReplyToStore( SipsnHeaderReplyTo *hdr );
PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderReplyTo *sipsnHeaderReplyToCreate( PbString *iri );

PB_API PbString *sipsnHeaderReplyToIri( SipsnHeaderReplyTo *hdr );
PB_API void      sipsnHeaderReplyToSetIri( SipsnHeaderReplyTo **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderReplyToTryDecodeUri( SipsnHeaderReplyTo *hdr );
PB_API void      sipsnHeaderReplyToSetUri( SipsnHeaderReplyTo **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderReplyToDisplayName( SipsnHeaderReplyTo *hdr );
PB_API bool      sipsnHeaderReplyToHasDisplayName( SipsnHeaderReplyTo *hdr );
PB_API void      sipsnHeaderReplyToSetDisplayName( SipsnHeaderReplyTo **hdr, PbString *displayName );
PB_API void      sipsnHeaderReplyToDelDisplayName( SipsnHeaderReplyTo **hdr );

PB_API SipsnGenericParams *sipsnHeaderReplyToGenericParams( SipsnHeaderReplyTo *hdr );
PB_API void sipsnHeaderReplyToSetGenericParams( SipsnHeaderReplyTo **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
