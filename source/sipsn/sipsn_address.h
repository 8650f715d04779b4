/* SipsnAddress: an address with parameters, RFC 3261 section 25.1.
 *
 * Example: "C" <sip:C@example.com>;lang=en
 *
 *     address = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     generic params   the parameters; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_ADDRESS_H
#define SIPSN_ADDRESS_H

#include "sipsn_display_name.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnAddress ), see pb_types.h */
typedef struct SipsnAddress SipsnAddress;

PB_API SipsnAddress *sipsnAddressCreateFrom( SipsnAddress *source );
PB_API SipsnAddress *sipsnAddressRetain( SipsnAddress *obj );
PB_API void          sipsnAddressRelease( SipsnAddress *obj );
PB_API PbObj        *sipsnAddressObj( SipsnAddress *obj );
PB_API SipsnAddress *sipsnAddressFrom( PbObj *obj );
PB_API PbSort       *sipsnAddressSort( void );
PB_API PbString     *sipsnAddressToString( SipsnAddress *obj );
PB_API int64_t       sipsnAddressCompare( SipsnAddress *a, SipsnAddress *b );
PB_API bool          sipsnAddressEquals( SipsnAddress *a, SipsnAddress *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnAddress *sipsnAddressCreate( PbString *iri );
PB_API SipsnAddress *sipsnAddressCreateCstr( const char *iri, int64_t length );
PB_API SipsnAddress *sipsnAddressCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnAddressIri( SipsnAddress *address );
PB_API void      sipsnAddressSetIri( SipsnAddress **address, PbString *iri );
PB_API void      sipsnAddressSetIriCstr( SipsnAddress **address, const char *iri, int64_t length );
PB_API void      sipsnAddressSetIriWcstr( SipsnAddress **address, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnAddressDisplayName( SipsnAddress *address );
PB_API bool      sipsnAddressHasDisplayName( SipsnAddress *address );
PB_API void      sipsnAddressSetDisplayName( SipsnAddress **address, PbString *displayName );
PB_API void      sipsnAddressSetDisplayNameCstr( SipsnAddress **address, const char *displayName, int64_t length );
PB_API void      sipsnAddressSetDisplayNameWcstr( SipsnAddress **address, const wchar_t *displayName, int64_t length );
PB_API void      sipsnAddressDelDisplayName( SipsnAddress **address );

PB_API SipsnGenericParams *sipsnAddressGenericParams( SipsnAddress *address );
PB_API void                sipsnAddressSetGenericParams( SipsnAddress **address, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( address ), see sipsn_uri.h */
PB_API SipsnUri *sipsnAddressTryDecodeUri( SipsnAddress *address );
PB_API void      sipsnAddressSetUri( SipsnAddress **address, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
