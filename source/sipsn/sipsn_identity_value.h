/* SipsnIdentityValue: one value of a P-Asserted-Identity or P-Preferred-Identity header field, RFC 3325 section 9.
 *
 * Example: "Alice" <sip:alice@example.com>
 *
 *     identity-value = name-addr / addr-spec
 *
 *     iri            the address, an IRI (a URI on the wire); never absent
 *     display name   free text without line ends; optional
 *
 * There are no parameters. Without angle brackets a ";" ends the address; they are always written.
 *
 * Getters return a new reference, or null when the member is absent. Setters and deleters replace *id by a private copy
 * when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_IDENTITY_VALUE_H
#define SIPSN_IDENTITY_VALUE_H

#include "pb/pb_string.h"

#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnIdentityValue ), see pb_types.h */
typedef struct SipsnIdentityValue SipsnIdentityValue;

PB_API SipsnIdentityValue *sipsnIdentityValueCreateFrom( SipsnIdentityValue *source );
PB_API SipsnIdentityValue *sipsnIdentityValueRetain( SipsnIdentityValue *obj );
PB_API void                sipsnIdentityValueRelease( SipsnIdentityValue *obj );
PB_API PbObj              *sipsnIdentityValueObj( SipsnIdentityValue *obj );
PB_API SipsnIdentityValue *sipsnIdentityValueFrom( PbObj *obj );
PB_API PbSort             *sipsnIdentityValueSort( void );
PB_API PbString           *sipsnIdentityValueToString( SipsnIdentityValue *obj );
PB_API int64_t             sipsnIdentityValueCompare( SipsnIdentityValue *a, SipsnIdentityValue *b );
PB_API bool                sipsnIdentityValueEquals( SipsnIdentityValue *a, SipsnIdentityValue *b );
/* ./dev lists: end */

PB_API SipsnIdentityValue *sipsnIdentityValueCreate( PbString *iri );

PB_API PbString *sipsnIdentityValueIri( SipsnIdentityValue *id );
PB_API void      sipsnIdentityValueSetIri( SipsnIdentityValue **id, PbString *iri );

/* ./dev lists: URI( id ), see sipsn_uri.h */
PB_API SipsnUri *sipsnIdentityValueTryDecodeUri( SipsnIdentityValue *id );
PB_API void      sipsnIdentityValueSetUri( SipsnIdentityValue **id, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnIdentityValueDisplayName( SipsnIdentityValue *id );
PB_API bool      sipsnIdentityValueHasDisplayName( SipsnIdentityValue *id );
PB_API void      sipsnIdentityValueSetDisplayName( SipsnIdentityValue **id, PbString *displayName );
PB_API void      sipsnIdentityValueDelDisplayName( SipsnIdentityValue **id );

PB_END_DECLS
#endif
