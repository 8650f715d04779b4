// Protocols of Reason: what is valid.
#include "sipsn_reason_protocol.h"

#include "pb/pb_frame.h"
#include "sipsn_token.h"

bool sipsnReasonProtocolOk( PbString *reasonProtocol )
{
    PB_ASSERT( reasonProtocol );
    return sipsnTokenOk( reasonProtocol );
}
