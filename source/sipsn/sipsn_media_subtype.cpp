// Media subtypes: what is valid, and the lower-case form.
#include "sipsn_media_subtype.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnMediaSubtypeOk( PbString *mediaSubtype )
{
    PB_ASSERT( mediaSubtype );
    return sipsn::Matches( mediaSubtype, sipsn___SkipMediaSubtype );
}

PbString *sipsnMediaSubtypeNormalize( PbString *mediaSubtype )
{
    PB_ASSERT( sipsnMediaSubtypeOk( mediaSubtype ) );
    return sipsn::ToLower( mediaSubtype );
}
