/* PbString: text as an array of 32-bit Unicode code points with a signed 64-bit length.
 *
 * Lengths and indexes count code points from 0. A `length` of -1 that accompanies a Cstr or Wcstr means "up to the
 * terminating zero". Cstr texts are UTF-8; bytes that are none become U+FFFD. Wcstr texts are code points. An index
 * or count out of range aborts, as does null where nothing else is said. Functions that take `PbString **` replace
 * *string by a private copy when it is shared. Strings compare by code point. */
#ifndef PB_STRING_H
#define PB_STRING_H

#include "pb_obj.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( PbString ), see pb_types.h */
typedef struct PbString PbString;

PB_API PbString *pbStringCreateFrom( PbString *source );
PB_API PbString *pbStringRetain( PbString *obj );
PB_API void      pbStringRelease( PbString *obj );
PB_API PbObj    *pbStringObj( PbString *obj );
PB_API PbString *pbStringFrom( PbObj *obj );
PB_API PbSort   *pbStringSort( void );
PB_API PbString *pbStringToString( PbString *obj );
PB_API int64_t   pbStringCompare( PbString *a, PbString *b );
PB_API bool      pbStringEquals( PbString *a, PbString *b );
/* ./dev lists: end */

typedef struct PbVector PbVector;

PB_API PbString *pbStringCreate( void );
PB_API PbString *pbStringCreateFromCstr( const char *text, int64_t length );
PB_API PbString *pbStringCreateFromWcstr( const wchar_t *text, int64_t length );
PB_API PbString *pbStringCreateFromCharsCopy( const PbChar *chs, int64_t length );

/* Texts made by formats; pb_format.h describes them. */
PB_API PbString *pbStringCreateFromFormat( PbString *format, ... );
PB_API PbString *pbStringCreateFromFormatArgList( PbString *format, va_list arguments );
PB_API PbString *pbStringCreateFromFormatCstr( const char *format, int64_t length, ... );
PB_API PbString *pbStringCreateFromFormatCstrArgList( const char *format, int64_t length, va_list arguments );
PB_API PbString *pbStringCreateFromFormatWcstr( const wchar_t *format, int64_t length, ... );
PB_API PbString *pbStringCreateFromFormatWcstrArgList( const wchar_t *format, int64_t length, va_list arguments );

PB_API int64_t pbStringLength( PbString *string );

/* The code points, valid while the string is unchanged and referenced. No terminating zero. */
PB_API const PbChar *pbStringBacking( PbString *string );
PB_API PbChar        pbStringCharAt( PbString *string, int64_t index );

PB_API void pbStringAppend( PbString **string, PbString *tail );
PB_API void pbStringAppendChar( PbString **string, PbChar ch );
PB_API void pbStringAppendChars( PbString **string, const PbChar *chs, int64_t length );
PB_API void pbStringAppendCstr( PbString **string, const char *text, int64_t length );
PB_API void pbStringAppendFormat( PbString **string, PbString *format, ... );
PB_API void pbStringAppendFormatArgList( PbString **string, PbString *format, va_list arguments );
PB_API void pbStringAppendFormatCstr( PbString **string, const char *format, int64_t length, ... );
PB_API void pbStringAppendFormatCstrArgList( PbString **string, const char *format, int64_t length, va_list arguments );

/* Appends the delimiter, unless the string is empty, and then the tail. */
PB_API void pbStringDelimitedAppendCharDelimiter( PbString **string, PbChar delimiter, PbString *tail );

/* New strings: `count` characters from an index, the first or the last `count`, and all but `count` from an index. */
PB_API PbString *pbStringInner( PbString *string, int64_t index, int64_t count );
PB_API PbString *pbStringLeading( PbString *string, int64_t count );
PB_API PbString *pbStringTrailing( PbString *string, int64_t count );
PB_API PbString *pbStringOuter( PbString *string, int64_t index, int64_t count );

/* Equality code point by code point. pbStringEquals is declared above, with null on either side aborting. */
PB_API bool pbStringEqualsChars( PbString *string, const PbChar *chs, int64_t length );
PB_API bool pbStringEqualsCstr( PbString *string, const char *text, int64_t length );

/* Full Unicode case mapping without a locale; the length may change. */
PB_API void pbStringToLower( PbString **string );
PB_API void pbStringToUpper( PbString **string );

/* Cuts at every `ch`, from the front, into at most `limit` pieces (-1: no limit); the last piece keeps what is left.
 * An empty string is one empty piece. */
PB_API PbVector *pbStringSplitChar( PbString *string, PbChar ch, int64_t limit );

/* Cuts at every one of `chs`. Where both CR and LF are among them, CR LF together is one cut. */
PB_API PbVector *pbStringSplitChars( PbString *string, const PbChar *chs, int64_t count, int64_t limit );

/* Reads an integer of radix 2 to 36 from `length` characters at `position` (-1: to the end), by the rules of
 * pbFormatTryDecodeIntChars. True when there is one; then *value and *charsRead, each of which may be null, are set. */
PB_API bool pbStringScanInt( PbString *string, int64_t position, int64_t length, int64_t radix, int64_t *value,
                             int64_t *charsRead );

PB_END_DECLS
#endif
