/* SipsnHeaderReferTo: the Refer-To header field, RFC 3515 section 2.1; one address.
 *
 * Example: Refer-To: "Dave" <sip:dave@denver.example.org;method=INVITE>;lang=en
 *
 *     Refer-To = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri             an IRI, converted from and to a URI on the wire; never absent
 *     display name    free text, without quotes and escapes; optional
 *     generic params  the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The parameters of a bare address are
 * the header field's. When they do not fit, or text is left that no parameter begins, the address is read once more as
 * a URI that may hold ";" and "?". The address is always written in angle brackets. Getters return a new reference,
 * null when the member is absent. Setters and deleters replace *hdr by a private copy when it is shared. A null or
 * invalid argument aborts. */
#ifndef SIPSN_HEADER_REFER_TO_H
#define SIPSN_HEADER_REFER_TO_H

#include "sipsn_display_name.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReferTo ), see sipsn_header.h */
typedef struct SipsnHeaderReferTo SipsnHeaderReferTo;

PB_API SipsnHeaderReferTo *sipsnHeaderReferToCreateFrom( SipsnHeaderReferTo *source );
PB_API SipsnHeaderReferTo *sipsnHeaderReferToRetain( SipsnHeaderReferTo *obj );
PB_API void                sipsnHeaderReferToRelease( SipsnHeaderReferTo *obj );
PB_API PbObj              *sipsnHeaderReferToObj( SipsnHeaderReferTo *obj );
PB_API SipsnHeaderReferTo *sipsnHeaderReferToFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderReferToSort( void );
PB_API PbString           *sipsnHeaderReferToToString( SipsnHeaderReferTo *obj );
PB_API int64_t             sipsnHeaderReferToCompare( SipsnHeaderReferTo *a, SipsnHeaderReferTo *b );
PB_API bool                sipsnHeaderReferToEquals( SipsnHeaderReferTo *a, SipsnHeaderReferTo *b );

PB_API SipsnHeaderReferTo *sipsnHeaderReferToTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderReferToEncode( SipsnHeaderReferTo *hdr );
PB_API SipsnHeaderReferTo *sipsnHeaderReferToTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderReferToEncodeToMessage( SipsnHeaderReferTo *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderReferToPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderReferToRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderReferToStore( SipsnHeaderReferTo *hdr );
PB_API SipsnHeaderReferTo *sipsnHeaderReferToTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderReferTo *sipsnHeaderReferToCreate( PbString *iri );

PB_API PbString *sipsnHeaderReferToIri( SipsnHeaderReferTo *hdr );
PB_API void      sipsnHeaderReferToSetIri( SipsnHeaderReferTo **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderReferToTryDecodeUri( SipsnHeaderReferTo *hdr );
PB_API void      sipsnHeaderReferToSetUri( SipsnHeaderReferTo **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderReferToDisplayName( SipsnHeaderReferTo *hdr );
PB_API bool      sipsnHeaderReferToHasDisplayName( SipsnHeaderReferTo *hdr );
PB_API void      sipsnHeaderReferToSetDisplayName( SipsnHeaderReferTo **hdr, PbString *displayName );
PB_API void      sipsnHeaderReferToDelDisplayName( SipsnHeaderReferTo **hdr );

PB_API SipsnGenericParams *sipsnHeaderReferToGenericParams( SipsnHeaderReferTo *hdr );
PB_API void sipsnHeaderReferToSetGenericParams( SipsnHeaderReferTo **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
