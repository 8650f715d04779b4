/* SipsnHeaderReferredBy: the Referred-By header field, RFC 3892 section 3; one address.
 *
 * Example: Referred-By: "Alice" <sip:alice@example.com>;cid="20398823.2UWQFN309shb3@alice.example.com";lang=en
 *
 *     Referred-By = ( name-addr / addr-spec ) *( SEMI ( "cid" EQUAL DQUOTE sip-clean-msg-id DQUOTE / generic-param ) )
 *
 *     iri             an IRI, converted from and to a URI on the wire; never absent
 *     display name    free text, without quotes and escapes; optional
 *     cid             a message identifier, without the quotes; optional
 *     generic params  every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The address is always written in
 * angle brackets. On the wire a member that is present takes the place of a generic parameter of its name. Getters
 * return a new reference, null when the member is absent. Setters and deleters replace *hdr by a private copy when it
 * is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_REFERRED_BY_H
#define SIPSN_HEADER_REFERRED_BY_H

#include "sipsn_display_name.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_sip_clean_msg_id.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderReferredBy ), see sipsn_header.h */
typedef struct SipsnHeaderReferredBy SipsnHeaderReferredBy;

PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByCreateFrom( SipsnHeaderReferredBy *source );
PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByRetain( SipsnHeaderReferredBy *obj );
PB_API void                   sipsnHeaderReferredByRelease( SipsnHeaderReferredBy *obj );
PB_API PbObj                 *sipsnHeaderReferredByObj( SipsnHeaderReferredBy *obj );
PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderReferredBySort( void );
PB_API PbString              *sipsnHeaderReferredByToString( SipsnHeaderReferredBy *obj );
PB_API int64_t                sipsnHeaderReferredByCompare( SipsnHeaderReferredBy *a, SipsnHeaderReferredBy *b );
PB_API bool                   sipsnHeaderReferredByEquals( SipsnHeaderReferredBy *a, SipsnHeaderReferredBy *b );

PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderReferredByEncode( SipsnHeaderReferredBy *hdr );
PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderReferredByEncodeToMessage( SipsnHeaderReferredBy *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderReferredByPresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderReferredByRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderReferredByStore( SipsnHeaderReferredBy *hdr );
PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderReferredBy *sipsnHeaderReferredByCreate( PbString *iri );

PB_API PbString *sipsnHeaderReferredByIri( SipsnHeaderReferredBy *hdr );
PB_API void      sipsnHeaderReferredBySetIri( SipsnHeaderReferredBy **hdr, PbString *iri );

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderReferredByTryDecodeUri( SipsnHeaderReferredBy *hdr );
PB_API void      sipsnHeaderReferredBySetUri( SipsnHeaderReferredBy **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderReferredByDisplayName( SipsnHeaderReferredBy *hdr );
PB_API bool      sipsnHeaderReferredByHasDisplayName( SipsnHeaderReferredBy *hdr );
PB_API void      sipsnHeaderReferredBySetDisplayName( SipsnHeaderReferredBy **hdr, PbString *displayName );
PB_API void      sipsnHeaderReferredByDelDisplayName( SipsnHeaderReferredBy **hdr );

PB_API PbString *sipsnHeaderReferredByCid( SipsnHeaderReferredBy *hdr );
PB_API bool      sipsnHeaderReferredByHasCid( SipsnHeaderReferredBy *hdr );
PB_API void      sipsnHeaderReferredBySetCid( SipsnHeaderReferredBy **hdr, PbString *cid );
PB_API void      sipsnHeaderReferredByDelCid( SipsnHeaderReferredBy **hdr );

PB_API SipsnGenericParams *sipsnHeaderReferredByGenericParams( SipsnHeaderReferredBy *hdr );
PB_API void sipsnHeaderReferredBySetGenericParams( SipsnHeaderReferredBy **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
