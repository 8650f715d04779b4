/* Values of generic parameters, RFC 3261 section 25.1 (gen-value): of one of three types. */
#ifndef SIPSN_GENERIC_PARAM_VALUE_H
#define SIPSN_GENERIC_PARAM_VALUE_H

#include "pb/pb.h"

PB_BEGIN_DECLS

typedef enum SIPSN_GENERIC_PARAM_VALUE_TYPE
{
    SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE            = -1, /* marks that there is no value */
    SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN           = 0,  /* normal form: lower case */
    SIPSN_GENERIC_PARAM_VALUE_TYPE_HOST            = 1,  /* a domain name, an IPv4 address, a bracketed IPv6 address */
    SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING = 2   /* the content of a quoted string */
} SIPSN_GENERIC_PARAM_VALUE_TYPE;

/* Whether a value can be of this type; "none" is not one. */
#define SIPSN_GENERIC_PARAM_VALUE_TYPE_OK( type )                                                                      \
    ( ( type ) >= SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN && ( type ) <= SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING )

/* Whether the value is one of its type, and its normal form as a new reference. An invalid type and a null value abort;
 * so does the normal form of a token that is none. */
PB_API bool      sipsnGenericParamValueOk( int64_t type, PbString *value );
PB_API PbString *sipsnGenericParamValueNormalize( int64_t type, PbString *value );

PB_END_DECLS
#endif
