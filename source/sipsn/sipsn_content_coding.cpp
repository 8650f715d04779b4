// Content codings: what is valid, and the lower-case form.
#include "sipsn_content_coding.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnContentCodingOk( PbString *contentCoding )
{
    PB_ASSERT( contentCoding );
    return sipsn::Matches( contentCoding, sipsn___SkipContentCoding );
}

PbString *sipsnContentCodingNormalize( PbString *contentCoding )
{
    PB_ASSERT( sipsnContentCodingOk( contentCoding ) );
    return sipsn::ToLower( contentCoding );
}
