// Disposition types: what is valid, and the lower-case form.
#include "sipsn_disposition_type.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnDispositionTypeOk( PbString *dispositionType )
{
    PB_ASSERT( dispositionType );
    return sipsn::Matches( dispositionType, sipsn___SkipDispositionType );
}

PbString *sipsnDispositionTypeNormalize( PbString *dispositionType )
{
    PB_ASSERT( sipsnDispositionTypeOk( dispositionType ) );
    return sipsn::ToLower( dispositionType );
}
