// Protocol names: what is valid, and the upper-case form.
#include "sipsn_protocol_name.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnProtocolNameOk( PbString *protocolName )
{
    PB_ASSERT( protocolName );
    return sipsn::Matches( protocolName, sipsn___SkipProtocolName );
}

PbString *sipsnProtocolNameNormalize( PbString *protocolName )
{
    PB_ASSERT( sipsnProtocolNameOk( protocolName ) );
    return sipsn::ToUpper( protocolName );
}
