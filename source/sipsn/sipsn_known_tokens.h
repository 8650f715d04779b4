// The tokens that messages hold most often, as constants: to keep one takes no memory. C++ only; never installed.
#pragma once

#include "pb/pb_frame.h"

namespace sipsn {

inline constexpr int64_t longestKnownToken = 16;

// The constant of exactly these characters; null when there is none, or the text is longer than that.
PbString *KnownToken( const PbChar *chs, int64_t length );

// The constant, or a new string.
PbString *TokenFromChars( const PbChar *chs, int64_t length );

} // namespace sipsn
