// Sequence numbers of requests: the range, and how much of it is left.
#include "sipsn_cseq.h"

#include "pb/pb_frame.h"

static constexpr int64_t highestCseq = 2147483647;

bool sipsnCseqOk( int64_t cseq ) { return cseq >= 0 && cseq <= highestCseq; }

bool sipsnCseqIncrementOk( int64_t cseq )
{
    PB_ASSERT( sipsnCseqOk( cseq ) );
    return cseq < highestCseq;
}

bool sipsnCseqScarce( int64_t cseq )
{
    PB_ASSERT( sipsnCseqOk( cseq ) );
    return highestCseq - cseq < 100;
}
