// The tag parameter of From and To: what is valid.
#include "sipsn_tag.h"

#include "pb/pb_frame.h"
#include "sipsn_token.h"

bool sipsnTagOk( PbString *tag )
{
    PB_ASSERT( tag );
    return sipsnTokenOk( tag );
}
