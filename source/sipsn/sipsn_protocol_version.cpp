// Protocol versions: what is valid, and the lower-case form.
#include "sipsn_protocol_version.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnProtocolVersionOk( PbString *protocolVersion )
{
    PB_ASSERT( protocolVersion );
    return sipsn::Matches( protocolVersion, sipsn___SkipProtocolVersion );
}

PbString *sipsnProtocolVersionNormalize( PbString *protocolVersion )
{
    PB_ASSERT( sipsnProtocolVersionOk( protocolVersion ) );
    return sipsn::ToLower( protocolVersion );
}
