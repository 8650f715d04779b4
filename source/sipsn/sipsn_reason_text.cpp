// Texts of Reason: what is valid.
#include "sipsn_reason_text.h"

#include "pb/pb_frame.h"
#include "sipsn_quotable_string.h"

bool sipsnReasonTextOk( PbString *reasonText )
{
    PB_ASSERT( reasonText );
    return sipsnQuotableStringOk( reasonText );
}
