// Labels of domain names between Unicode and Punycode, as far as that takes no library. C++ only; never installed.
#pragma once

#include "pb/pb_text.h"

namespace in {

inline constexpr int64_t labelLimit    = 63;
inline constexpr int64_t punycodeLimit = labelLimit * 10; // no character takes more

// Decodes Punycode (RFC 3492 section 6.2) in lower case to `chs`, which has room for labelLimit characters. How many it
// gives; 0 when the text is no Punycode, or too long. No two texts give the same characters.
int64_t DecodePunycode( const char *text, int64_t length, PbChar *chs );

// The reverse, of at most labelLimit characters to room for punycodeLimit. How many it gives.
int64_t EncodePunycode( pb::Text label, char *text );

// Whether libidn2 would take the label as it stands, because it has only letters that IDNA 2008 lets pass wherever they
// are. What it has of ASCII must be letters in lower case, digits and hyphens. False says nothing.
bool IsPlainLabel( pb::Text label );

} // namespace in
