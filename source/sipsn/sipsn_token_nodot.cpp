// Tokens without a dot: what is valid, and the lower-case form.
#include "sipsn_token_nodot.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnTokenNodotOk( PbString *tokenNodot )
{
    PB_ASSERT( tokenNodot );
    return sipsn::Matches( tokenNodot, sipsn___SkipTokenNodot );
}

PbString *sipsnTokenNodotNormalize( PbString *tokenNodot )
{
    PB_ASSERT( sipsnTokenNodotOk( tokenNodot ) );
    return sipsn::ToLower( tokenNodot );
}
