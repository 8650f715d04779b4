/* SipsnRefusedUri: one address of P-Refused-URI-List, RFC 5318 section 5.
 *
 * Example: "F" <sip:friends@example.net>;members="cid:an3bt8jf03@example.net";lang=en
 *
 *     uri-list-entry = ( name-addr / addr-spec ) *( SEMI ( "members" EQUAL DQUOTE URI DQUOTE / generic-param ) )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     members          the cid URL of the body part that lists its members, an IRI, quoted on
 *                      the wire; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Members between angle brackets, as the examples of the RFC have it, are read and written quoted. A decoded
 * parameter whose value does not fit its member is kept as a generic one. Values compare in the order above. */
#ifndef SIPSN_REFUSED_URI_H
#define SIPSN_REFUSED_URI_H

#include "sipsn_display_name.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnRefusedUri ), see pb_types.h */
typedef struct SipsnRefusedUri SipsnRefusedUri;

PB_API SipsnRefusedUri *sipsnRefusedUriCreateFrom( SipsnRefusedUri *source );
PB_API SipsnRefusedUri *sipsnRefusedUriRetain( SipsnRefusedUri *obj );
PB_API void             sipsnRefusedUriRelease( SipsnRefusedUri *obj );
PB_API PbObj           *sipsnRefusedUriObj( SipsnRefusedUri *obj );
PB_API SipsnRefusedUri *sipsnRefusedUriFrom( PbObj *obj );
PB_API PbSort          *sipsnRefusedUriSort( void );
PB_API PbString        *sipsnRefusedUriToString( SipsnRefusedUri *obj );
PB_API int64_t          sipsnRefusedUriCompare( SipsnRefusedUri *a, SipsnRefusedUri *b );
PB_API bool             sipsnRefusedUriEquals( SipsnRefusedUri *a, SipsnRefusedUri *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnRefusedUri *sipsnRefusedUriCreate( PbString *iri );
PB_API SipsnRefusedUri *sipsnRefusedUriCreateCstr( const char *iri, int64_t length );
PB_API SipsnRefusedUri *sipsnRefusedUriCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnRefusedUriIri( SipsnRefusedUri *refused );
PB_API void      sipsnRefusedUriSetIri( SipsnRefusedUri **refused, PbString *iri );
PB_API void      sipsnRefusedUriSetIriCstr( SipsnRefusedUri **refused, const char *iri, int64_t length );
PB_API void      sipsnRefusedUriSetIriWcstr( SipsnRefusedUri **refused, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnRefusedUriDisplayName( SipsnRefusedUri *refused );
PB_API bool      sipsnRefusedUriHasDisplayName( SipsnRefusedUri *refused );
PB_API void      sipsnRefusedUriSetDisplayName( SipsnRefusedUri **refused, PbString *displayName );
PB_API void sipsnRefusedUriSetDisplayNameCstr( SipsnRefusedUri **refused, const char *displayName, int64_t length );
PB_API void sipsnRefusedUriSetDisplayNameWcstr( SipsnRefusedUri **refused, const wchar_t *displayName, int64_t length );
PB_API void sipsnRefusedUriDelDisplayName( SipsnRefusedUri **refused );

PB_API PbString *sipsnRefusedUriMembers( SipsnRefusedUri *refused );
PB_API bool      sipsnRefusedUriHasMembers( SipsnRefusedUri *refused );
PB_API void      sipsnRefusedUriSetMembers( SipsnRefusedUri **refused, PbString *members );
PB_API void      sipsnRefusedUriSetMembersCstr( SipsnRefusedUri **refused, const char *members, int64_t length );
PB_API void      sipsnRefusedUriSetMembersWcstr( SipsnRefusedUri **refused, const wchar_t *members, int64_t length );
PB_API void      sipsnRefusedUriDelMembers( SipsnRefusedUri **refused );

PB_API SipsnGenericParams *sipsnRefusedUriGenericParams( SipsnRefusedUri *refused );
PB_API void sipsnRefusedUriSetGenericParams( SipsnRefusedUri **refused, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( refused ), see sipsn_uri.h */
PB_API SipsnUri *sipsnRefusedUriTryDecodeUri( SipsnRefusedUri *refused );
PB_API void      sipsnRefusedUriSetUri( SipsnRefusedUri **refused, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
