// The screen parameter of Diversion: what is valid, the lower-case form, and the wire form.
#include "sipsn_diversion_screen.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDiversionScreenOk( PbString *diversionScreen )
{
    PB_ASSERT( diversionScreen );
    return sipsn::Matches( diversionScreen, sipsn___SkipDiversionScreen );
}

PbString *sipsnDiversionScreenNormalize( PbString *diversionScreen )
{
    PB_ASSERT( diversionScreen );
    return sipsn::ToLower( diversionScreen );
}

PbString *sipsn___DiversionScreenTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn___DiversionPrivacyTryDecode( chs, length );
}

PbString *sipsn___DiversionScreenEncode( PbString *diversionScreen )
{
    PB_ASSERT( diversionScreen );
    return sipsn___DiversionPrivacyEncode( diversionScreen );
}
