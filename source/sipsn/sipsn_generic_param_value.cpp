// Values of generic parameters: what is valid, and the normal form.
#include "sipsn_generic_param_value.h"

#include "sipsn_host.h"
#include "sipsn_internal.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

bool sipsnGenericParamValueOk( int64_t type, PbString *value )
{
    PB_ASSERT( SIPSN_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
    PB_ASSERT( value );
    switch( type ) {
    case SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN: return sipsnTokenOk( value );
    case SIPSN_GENERIC_PARAM_VALUE_TYPE_HOST: return sipsnHostOk( value );
    default: return sipsnQuotableStringOk( value );
    }
}

PbString *sipsnGenericParamValueNormalize( int64_t type, PbString *value )
{
    PB_ASSERT( SIPSN_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
    PB_ASSERT( value );
    return type == SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN ? sipsnTokenNormalize( value ) : pb::Retain( value );
}
