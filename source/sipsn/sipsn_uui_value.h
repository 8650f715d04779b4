/* SipsnUuiValue: one uui-value of a User-to-User header field, RFC 7433 section 4.1.
 *
 * Example: 56a390f3d2b7310023;encoding=hex;purpose=isdn-uui;content=isdn-uui;lang=en
 *
 *     uui-value = token *( SEMI ( ( "encoding" / "purpose" / "content" ) EQUAL token / generic-param ) )
 *
 *     uui data         a token, or a text without CR and LF; never absent
 *     encoding         a token, case kept; optional
 *     purpose          a token, case kept; optional
 *     content          a token, case kept; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Data is on the wire as a token only: a value whose data is a quoted string does not decode, and data that is not a
 * token is left out when the value is written. A member that is present takes the place of a generic parameter of its
 * name.
 *
 * Getters return a new reference, or null when the member is absent. Setters and deleters replace *value by a private
 * copy when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_UUI_VALUE_H
#define SIPSN_UUI_VALUE_H

#include "sipsn_generic_params.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnUuiValue ), see pb_types.h */
typedef struct SipsnUuiValue SipsnUuiValue;

PB_API SipsnUuiValue *sipsnUuiValueCreateFrom( SipsnUuiValue *source );
PB_API SipsnUuiValue *sipsnUuiValueRetain( SipsnUuiValue *obj );
PB_API void           sipsnUuiValueRelease( SipsnUuiValue *obj );
PB_API PbObj         *sipsnUuiValueObj( SipsnUuiValue *obj );
PB_API SipsnUuiValue *sipsnUuiValueFrom( PbObj *obj );
PB_API PbSort        *sipsnUuiValueSort( void );
PB_API PbString      *sipsnUuiValueToString( SipsnUuiValue *obj );
PB_API int64_t        sipsnUuiValueCompare( SipsnUuiValue *a, SipsnUuiValue *b );
PB_API bool           sipsnUuiValueEquals( SipsnUuiValue *a, SipsnUuiValue *b );
/* ./dev lists: end */

PB_API SipsnUuiValue *sipsnUuiValueCreate( PbString *uuiData );

PB_API PbString *sipsnUuiValueUuiData( SipsnUuiValue *value );
PB_API void      sipsnUuiValueSetUuiData( SipsnUuiValue **value, PbString *uuiData );

PB_API PbString *sipsnUuiValueEncoding( SipsnUuiValue *value );
PB_API bool      sipsnUuiValueHasEncoding( SipsnUuiValue *value );
PB_API void      sipsnUuiValueSetEncoding( SipsnUuiValue **value, PbString *encoding );
PB_API void      sipsnUuiValueDelEncoding( SipsnUuiValue **value );

PB_API PbString *sipsnUuiValuePurpose( SipsnUuiValue *value );
PB_API bool      sipsnUuiValueHasPurpose( SipsnUuiValue *value );
PB_API void      sipsnUuiValueSetPurpose( SipsnUuiValue **value, PbString *purpose );
PB_API void      sipsnUuiValueDelPurpose( SipsnUuiValue **value );

PB_API PbString *sipsnUuiValueContent( SipsnUuiValue *value );
PB_API bool      sipsnUuiValueHasContent( SipsnUuiValue *value );
PB_API void      sipsnUuiValueSetContent( SipsnUuiValue **value, PbString *content );
PB_API void      sipsnUuiValueDelContent( SipsnUuiValue **value );

PB_API SipsnGenericParams *sipsnUuiValueGenericParams( SipsnUuiValue *value );
PB_API void                sipsnUuiValueSetGenericParams( SipsnUuiValue **value, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
