/* SipsnGenericParams: the parameters of a value or header field, RFC 3261 section 25.1; a set with one parameter of a
 * name.
 *
 * Example: ;lang=en;reg-id=1;secure
 *
 *     generic-params = *( SEMI generic-param )
 *
 * Parameters are kept, counted and written in ascending order of their names. Names are tokens in any letter case;
 * another name aborts, as do null and an index out of range. Results are new references. Changing functions replace
 * *params by a private copy when it is shared. The Cstr and Wcstr forms take the name as text with its length, -1
 * meaning up to the terminating zero. */
#ifndef SIPSN_GENERIC_PARAMS_H
#define SIPSN_GENERIC_PARAMS_H

#include "sipsn_generic_param.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnGenericParams ), see pb_types.h */
typedef struct SipsnGenericParams SipsnGenericParams;

PB_API SipsnGenericParams *sipsnGenericParamsCreateFrom( SipsnGenericParams *source );
PB_API SipsnGenericParams *sipsnGenericParamsRetain( SipsnGenericParams *obj );
PB_API void                sipsnGenericParamsRelease( SipsnGenericParams *obj );
PB_API PbObj              *sipsnGenericParamsObj( SipsnGenericParams *obj );
PB_API SipsnGenericParams *sipsnGenericParamsFrom( PbObj *obj );
PB_API PbSort             *sipsnGenericParamsSort( void );
PB_API PbString           *sipsnGenericParamsToString( SipsnGenericParams *obj );
PB_API int64_t             sipsnGenericParamsCompare( SipsnGenericParams *a, SipsnGenericParams *b );
PB_API bool                sipsnGenericParamsEquals( SipsnGenericParams *a, SipsnGenericParams *b );
/* ./dev lists: end */

PB_API SipsnGenericParams *sipsnGenericParamsCreate( void ); /* empty */

PB_API int64_t            sipsnGenericParamsLength( SipsnGenericParams *params );
PB_API SipsnGenericParam *sipsnGenericParamsParamAt( SipsnGenericParams *params, int64_t index );
PB_API PbVector          *sipsnGenericParamsParamsVector( SipsnGenericParams *params );

/* Replaces the whole set by the elements of the vector; of two with one name the later stays. */
PB_API void sipsnGenericParamsSetParamsVector( SipsnGenericParams **params, PbVector *vector );

PB_API bool sipsnGenericParamsHasParam( SipsnGenericParams *params, PbString *name );
PB_API bool sipsnGenericParamsHasParamCstr( SipsnGenericParams *params, const char *name, int64_t nameLength );
PB_API bool sipsnGenericParamsHasParamWcstr( SipsnGenericParams *params, const wchar_t *name, int64_t nameLength );

/* The parameter of a name, or null. */
PB_API SipsnGenericParam *sipsnGenericParamsParam( SipsnGenericParams *params, PbString *name );
PB_API SipsnGenericParam *sipsnGenericParamsParamCstr( SipsnGenericParams *params, const char *name,
                                                       int64_t nameLength );
PB_API SipsnGenericParam *sipsnGenericParamsParamWcstr( SipsnGenericParams *params, const wchar_t *name,
                                                        int64_t nameLength );

/* The value and its type; null and -1 when the parameter is absent or has none. */
PB_API int64_t sipsnGenericParamsParamValueType( SipsnGenericParams *params, PbString *name );
PB_API int64_t sipsnGenericParamsParamValueTypeCstr( SipsnGenericParams *params, const char *name, int64_t nameLength );
PB_API int64_t sipsnGenericParamsParamValueTypeWcstr( SipsnGenericParams *params, const wchar_t *name,
                                                      int64_t nameLength );
PB_API int64_t sipsnGenericParamsParamValueTypeAt( SipsnGenericParams *params, int64_t index );

PB_API PbString *sipsnGenericParamsParamValueNonNormalized( SipsnGenericParams *params, PbString *name );
PB_API PbString *sipsnGenericParamsParamValueNonNormalizedCstr( SipsnGenericParams *params, const char *name,
                                                                int64_t nameLength );
PB_API PbString *sipsnGenericParamsParamValueNonNormalizedWcstr( SipsnGenericParams *params, const wchar_t *name,
                                                                 int64_t nameLength );
PB_API PbString *sipsnGenericParamsParamValueNonNormalizedAt( SipsnGenericParams *params, int64_t index );

PB_API PbString *sipsnGenericParamsParamValueNormalized( SipsnGenericParams *params, PbString *name );
PB_API PbString *sipsnGenericParamsParamValueNormalizedCstr( SipsnGenericParams *params, const char *name,
                                                             int64_t nameLength );
PB_API PbString *sipsnGenericParamsParamValueNormalizedWcstr( SipsnGenericParams *params, const wchar_t *name,
                                                              int64_t nameLength );
PB_API PbString *sipsnGenericParamsParamValueNormalizedAt( SipsnGenericParams *params, int64_t index );

/* Inserts the parameter, or replaces the one of its name. */
PB_API void sipsnGenericParamsSetParam( SipsnGenericParams **params, SipsnGenericParam *param );
PB_API void sipsnGenericParamsSetParamValue( SipsnGenericParams **params, PbString *name, int64_t type,
                                             PbString *value );
PB_API void sipsnGenericParamsSetParamValueCstr( SipsnGenericParams **params, const char *name, int64_t nameLength,
                                                 int64_t type, PbString *value );
PB_API void sipsnGenericParamsSetParamValueWcstr( SipsnGenericParams **params, const wchar_t *name, int64_t nameLength,
                                                  int64_t type, PbString *value );

/* An absent name is not an error. */
PB_API void sipsnGenericParamsDelParam( SipsnGenericParams **params, PbString *name );
PB_API void sipsnGenericParamsDelParamCstr( SipsnGenericParams **params, const char *name, int64_t nameLength );
PB_API void sipsnGenericParamsDelParamWcstr( SipsnGenericParams **params, const wchar_t *name, int64_t nameLength );

PB_END_DECLS
#endif
