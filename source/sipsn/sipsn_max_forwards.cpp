// Hop limits: the range.
#include "sipsn_max_forwards.h"

bool sipsnMaxForwardsOk( int64_t maxForwards ) { return maxForwards >= 0 && maxForwards <= 255; }
