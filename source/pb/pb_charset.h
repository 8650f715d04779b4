/* Text from bytes and bytes from text. */
#ifndef PB_CHARSET_H
#define PB_CHARSET_H

#include "pb_buffer.h"

PB_BEGIN_DECLS

#define PB_CHARSET_UTF8        44
#define PB_CHARSET_FLAG_STRICT 1

/* The bytes as a new string. Strict: null when they are not well-formed UTF-8 (overlong forms, surrogates, code points
 * above 10FFFF and cut-off sequences are not); else each maximal ill-formed part becomes U+FFFD. A byte-order mark is a
 * character like any other. Another charset aborts. */
PB_API PbString *pbCharsetBufferToStringWithFlags( int64_t charset, PbBuffer *buffer, int64_t flags );

/* The text as a new buffer. Characters that UTF-8 cannot write (surrogates, what is not a code point) become U+FFFD;
 * strict: null. */
PB_API PbBuffer *pbCharsetStringToBufferWithFlags( int64_t charset, PbString *string, int64_t flags );

/* Writes the characters as UTF-8 and returns how many bytes they take. Nothing is written past bytesLength, and no
 * sequence is cut: when the result is larger, bytes holds a prefix. `bytes` may be null when bytesLength is 0. Strict:
 * -1 for characters that UTF-8 cannot write; else they become U+FFFD. */
PB_API int64_t pbCharsConvertToUtf8( PbByte *bytes, int64_t bytesLength, const PbChar *chs, int64_t chsLength,
                                     bool strict );

/* The upper-case mapping of a character by the Unicode character database, without a locale: writes 1 to 3 characters
 * to `mapping` and returns how many. A character without one maps to itself. */
PB_API int64_t pb___UnicodeUpperCaseDbLookup( PbChar ch, PbChar mapping[ 3 ] );

PB_END_DECLS
#endif
