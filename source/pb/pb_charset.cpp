// Conversion between strings and UTF-8 buffers, and the upper-case mapping of single characters.
#include "pb_charset.h"

#include "pb_internal.h"
#include "pb_text.h"

#include <unicase.h>

PbString *pbCharsetBufferToStringWithFlags( int64_t charset, PbBuffer *buffer, int64_t flags )
{
    PB_ASSERT( charset == PB_CHARSET_UTF8 );
    PB_ASSERT( buffer );
    const PbByte *bytes  = pbBufferBacking( buffer );
    const int64_t length = pbBufferLength( buffer );
    return flags & PB_CHARSET_FLAG_STRICT ? pb___StringTryCreateFromUtf8( bytes, length )
                                          : pbStringCreateFromCstr( reinterpret_cast< const char * >( bytes ), length );
}

PbBuffer *pbCharsetStringToBufferWithFlags( int64_t charset, PbString *string, int64_t flags )
{
    PB_ASSERT( charset == PB_CHARSET_UTF8 );
    PB_ASSERT( string );
    const bool strict = flags & PB_CHARSET_FLAG_STRICT;
    // As if all were ASCII, so that then one pass is enough.
    for( int64_t room = string->length;; ) {
        PbByte       *bytes;
        pb::Ref       buffer{ pb___BufferCreateUninitialized( room, &bytes ) };
        const int64_t length = pb::EncodeUtf8( bytes, room, string->chs, string->length, strict );
        if( length < 0 ) return nullptr;
        if( length == room ) return buffer.Detach();
        room = length;
    }
}

int64_t pbCharsConvertToUtf8( PbByte *bytes, int64_t bytesLength, const PbChar *chs, int64_t chsLength, bool strict )
{
    PB_ASSERT( bytesLength >= 0 );
    PB_ASSERT( bytes || bytesLength == 0 );
    PB_ASSERT( chsLength >= 0 );
    PB_ASSERT( chs || chsLength == 0 );
    return pb::EncodeUtf8( bytes, bytesLength, chs, chsLength, strict );
}

int64_t pb___UnicodeUpperCaseDbLookup( PbChar ch, PbChar mapping[ 3 ] )
{
    PB_ASSERT( mapping );
    mapping[ 0 ] = pb::AsciiUpper( ch );
    if( ch < 0x80 || !PB_CHAR_OK( ch ) || ( ch >= 0xD800 && ch <= 0xDFFF ) ) return 1;

    // No character maps to more than three, so the library has no need of a buffer of its own.
    const auto      code = static_cast< uint32_t >( ch );
    uint32_t        upper[ 3 ];
    size_t          length = 3;
    const uint32_t *mapped = u32_toupper( &code, 1, nullptr, nullptr, upper, &length );
    PB_ASSERT( mapped == upper );
    for( size_t i = 0; i < length; ++i ) mapping[ i ] = static_cast< PbChar >( upper[ i ] );
    return int64_t( length );
}
