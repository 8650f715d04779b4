// Sequence numbers of provisional responses: the range, and how much of it is left.
#include "sipsn_response_num.h"

#include "pb/pb_frame.h"

static constexpr int64_t highestResponseNum = 4294967295;

bool sipsnResponseNumOk( int64_t responseNum ) { return responseNum >= 1 && responseNum <= highestResponseNum; }

bool sipsnResponseNumIncrementOk( int64_t responseNum )
{
    PB_ASSERT( sipsnResponseNumOk( responseNum ) );
    return responseNum < highestResponseNum;
}
