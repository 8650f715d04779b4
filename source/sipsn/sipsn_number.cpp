// Numbers without a unit: what is valid.
#include "sipsn_number.h"

bool sipsnNumberOk( int64_t number ) { return number >= 0; }
bool sipsnErrorCodeOk( int64_t errorCode ) { return errorCode >= 0 && errorCode <= 999; }
bool sipsnMaxBreadthOk( int64_t maxBreadth ) { return maxBreadth >= 1; }
bool sipsnNonceCountOk( int64_t nonceCount ) { return nonceCount >= 0 && nonceCount <= UINT32_MAX; }
