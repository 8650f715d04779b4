/* The format language, and integers as text.
 *
 *     %s        a PbString argument, which the caller keeps
 *     %~s       a PbString argument, which is released after use
 *     %i        an int64_t argument in decimal; an int argument must be cast
 *     %5i       padded with blanks on the left to a width of 5; %05i with zeros after the sign
 *     %^!16i    "!base" sets the base, 2 to 36; "^" writes digits above 9 in upper case (flags before base before "i")
 *     %.*A      two int64_t arguments, the highest index and an index: the index in decimal, zero-padded to the width
 *               of the highest index
 *     %~A...    "~" before any conversion is accepted; it matters to "%s" alone
 *     %%        a percent sign
 *
 * The flags "~", "^" and "0" stand right after "%", in any order; then the width; then "!base". A null string
 * argument or an unknown conversion aborts. */
#ifndef PB_FORMAT_H
#define PB_FORMAT_H

#include "pb_string.h"

PB_BEGIN_DECLS

#define PB_FORMAT_FLAG_UPPER_CASE 1 /* digits above 9 in upper case */
#define PB_FORMAT_FLAG_ZERO_PAD   2 /* padding with zeros, after the sign */

/* The value in a base of 2 to 36, padded on the left to `width` characters (0: not padded). A new string. */
PB_API PbString *pbFormatEncodeInt( int64_t value, int64_t base, int64_t width, int64_t flags );

/* Reads the longest integer at the start: an optional "-" and one or more digits of a radix of 2 to 36, letters in
 * either case. No blanks and no "+"; "-0" and what does not fit 64 bits are refused; "007" is 7. True when there is
 * one; then *result and *charsRead, each of which may be null, are set; else they are set to -1 and 0. */
PB_API bool pbFormatTryDecodeIntChars( const PbChar *chs, int64_t length, int64_t radix, int64_t *result,
                                       int64_t *charsRead );

PB_END_DECLS
#endif
