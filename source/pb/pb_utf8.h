// UTF-8 to code points and back, into memory that the caller has ready. C++ only; never installed.
#pragma once

#include "pb_types.h"

namespace pb {

inline constexpr PbChar replacementChar = 0xFFFD; // stands for what cannot be converted

// Decodes into `chs`, which has room for `length` characters, and returns how many it wrote. Ill-formed input: -1 when
// strict; else each maximal part of it that could begin a sequence, or else each byte, becomes U+FFFD.
int64_t DecodeUtf8( PbChar *chs, const PbByte *bytes, int64_t length, bool strict );

// Decodes the one sequence at the start of a text of at least one byte and returns how many bytes it takes. For an
// ill-formed one `ch` is -1, and the result the number of bytes that one U+FFFD stands for.
int64_t DecodeUtf8Sequence( PbChar &ch, const PbByte *bytes, int64_t length );

// Encodes as pbCharsConvertToUtf8 does.
int64_t EncodeUtf8( PbByte *bytes, int64_t bytesLength, const PbChar *chs, int64_t chsLength, bool strict );

} // namespace pb
