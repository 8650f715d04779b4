// Transports of Via: what is valid, and the lower-case form.
#include "sipsn_transport.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

bool sipsnTransportOk( PbString *transport )
{
    PB_ASSERT( transport );
    return sipsn::Matches( transport, sipsn___SkipTransport );
}

PbString *sipsnTransportNormalize( PbString *transport )
{
    PB_ASSERT( sipsnTransportOk( transport ) );
    return sipsn::ToLower( transport );
}
