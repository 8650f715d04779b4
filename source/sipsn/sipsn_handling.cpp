// The handling parameter of Content-Disposition: what is valid, and the lower-case form.
#include "sipsn_handling.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnHandlingOk( PbString *handling )
{
    PB_ASSERT( handling );
    return sipsn::Matches( handling, sipsn___SkipHandling );
}

PbString *sipsnHandlingNormalize( PbString *handling )
{
    PB_ASSERT( sipsnHandlingOk( handling ) );
    return sipsn::ToLower( handling );
}
