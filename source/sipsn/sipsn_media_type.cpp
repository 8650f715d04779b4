// Media types: what is valid, and the lower-case form.
#include "sipsn_media_type.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnMediaTypeOk( PbString *mediaType )
{
    PB_ASSERT( mediaType );
    return sipsn::Matches( mediaType, sipsn___SkipMediaType );
}

PbString *sipsnMediaTypeNormalize( PbString *mediaType )
{
    PB_ASSERT( sipsnMediaTypeOk( mediaType ) );
    return sipsn::ToLower( mediaType );
}
