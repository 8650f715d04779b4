// Texts of Warning: what is valid.
#include "sipsn_warn_text.h"

#include "pb/pb_frame.h"
#include "sipsn_quotable_string.h"

bool sipsnWarnTextOk( PbString *warnText )
{
    PB_ASSERT( warnText );
    return sipsnQuotableStringOk( warnText );
}
