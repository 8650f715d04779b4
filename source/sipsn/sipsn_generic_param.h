/* SipsnGenericParam: one parameter of a value or header field, RFC 3261 section 25.1.
 *
 * Example: lang=en
 *
 *     generic-param = token [ EQUAL ( token / host / quoted-string ) ]
 *
 *     name         a token, in lower case; never absent
 *     value type   SIPSN_GENERIC_PARAM_VALUE_TYPE; -1 when there is no value
 *     value        as given or decoded; null when there is none
 *
 * Getters return a new reference, or null when the member is absent. Changing functions replace *param by a private
 * copy when it is shared. A null or invalid argument aborts. Parameters compare by name, value type and the normal form
 * of the value, so that token values in different letter case are equal. */
#ifndef SIPSN_GENERIC_PARAM_H
#define SIPSN_GENERIC_PARAM_H

#include "sipsn_generic_param_value.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnGenericParam ), see pb_types.h */
typedef struct SipsnGenericParam SipsnGenericParam;

PB_API SipsnGenericParam *sipsnGenericParamCreateFrom( SipsnGenericParam *source );
PB_API SipsnGenericParam *sipsnGenericParamRetain( SipsnGenericParam *obj );
PB_API void               sipsnGenericParamRelease( SipsnGenericParam *obj );
PB_API PbObj             *sipsnGenericParamObj( SipsnGenericParam *obj );
PB_API SipsnGenericParam *sipsnGenericParamFrom( PbObj *obj );
PB_API PbSort            *sipsnGenericParamSort( void );
PB_API PbString          *sipsnGenericParamToString( SipsnGenericParam *obj );
PB_API int64_t            sipsnGenericParamCompare( SipsnGenericParam *a, SipsnGenericParam *b );
PB_API bool               sipsnGenericParamEquals( SipsnGenericParam *a, SipsnGenericParam *b );
/* ./dev lists: end */

PB_API SipsnGenericParam *sipsnGenericParamCreate( PbString *name );
PB_API SipsnGenericParam *sipsnGenericParamCreateCstr( const char *name, int64_t nameLength );
PB_API SipsnGenericParam *sipsnGenericParamCreateWcstr( const wchar_t *name, int64_t nameLength );
PB_API SipsnGenericParam *sipsnGenericParamCreateWithValue( PbString *name, int64_t type, PbString *value );
PB_API SipsnGenericParam *sipsnGenericParamCreateWithValueCstr( const char *name, int64_t nameLength, int64_t type,
                                                                PbString *value );
PB_API SipsnGenericParam *sipsnGenericParamCreateWithValueWcstr( const wchar_t *name, int64_t nameLength, int64_t type,
                                                                 PbString *value );

/* Names are tokens; their normal form is lower case, as a new reference. */
PB_API bool      sipsnGenericParamNameOk( PbString *name );
PB_API PbString *sipsnGenericParamNameNormalize( PbString *name );

PB_API PbString *sipsnGenericParamName( SipsnGenericParam *param );
PB_API void      sipsnGenericParamSetName( SipsnGenericParam **param, PbString *name );
PB_API void      sipsnGenericParamSetNameCstr( SipsnGenericParam **param, const char *name, int64_t nameLength );
PB_API void      sipsnGenericParamSetNameWcstr( SipsnGenericParam **param, const wchar_t *name, int64_t nameLength );

PB_API bool      sipsnGenericParamHasValue( SipsnGenericParam *param );
PB_API int64_t   sipsnGenericParamValueType( SipsnGenericParam *param );
PB_API PbString *sipsnGenericParamValueNonNormalized( SipsnGenericParam *param );
PB_API PbString *sipsnGenericParamValueNormalized( SipsnGenericParam *param );
PB_API void      sipsnGenericParamSetValue( SipsnGenericParam **param, int64_t type, PbString *value );
PB_API void      sipsnGenericParamDelValue( SipsnGenericParam **param );

/* Replaces the value, if there is one, by its normal form. */
PB_API void sipsnGenericParamNormalizeValue( SipsnGenericParam **param );

PB_END_DECLS
#endif
