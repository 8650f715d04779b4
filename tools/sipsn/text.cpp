// Text of the libraries as UTF-8, and in a form that a terminal shows and does not obey.
#include "text.h"

#include "pb/pb_text.h"

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cwchar>
#include <iterator>

namespace tool {

namespace {

struct Range
{
    PbChar first, last;
};

// What acts on a terminal or misleads a reader, beyond ASCII: C1 controls, soft hyphen, direction and other format
// marks, line and paragraph separators, tags, surrogates. U+200C and U+200D are left out, as Persian and emoji are
// written with them.
constexpr Range unshown[] = { { 0x80, 0x9F },     { 0xAD, 0xAD },     { 0x600, 0x605 },     { 0x61C, 0x61C },
                              { 0x6DD, 0x6DD },   { 0x70F, 0x70F },   { 0x180E, 0x180E },   { 0x200B, 0x200B },
                              { 0x200E, 0x200F }, { 0x2028, 0x202E }, { 0x2060, 0x206F },   { 0xD800, 0xDFFF },
                              { 0xFEFF, 0xFEFF }, { 0xFFF9, 0xFFFB }, { 0x1D173, 0x1D17A }, { 0xE0000, 0xE0FFF } };

bool IsShown( PbChar ch )
{
    if( ch < 0x80 ) return ch >= 0x20 && ch != 0x7F;
    return std::none_of( std::begin( unshown ), std::end( unshown ),
                         [ ch ]( Range range ) { return ch >= range.first && ch <= range.last; } );
}

std::string Format( const char *format, unsigned number )
{
    char text[ 16 ];
    std::snprintf( text, sizeof( text ), format, number );
    return text;
}

// One character at the start of UTF-8 text, and how many bytes it takes.
struct Character
{
    PbChar ch;
    size_t size;
};

// A single byte as -1 when the text does not begin with a well-formed character.
Character FirstCharacter( std::string_view utf8 )
{
    const auto bytes = reinterpret_cast< const PbByte * >( utf8.data() );

    PbChar        ch;
    const int64_t size = pb::DecodeUtf8Sequence( ch, bytes, int64_t( utf8.size() ) );
    return ch < 0 ? Character{ -1, 1 } : Character{ ch, size_t( size ) };
}

std::string EscapeWith( std::string_view utf8, std::string ( *escape )( PbChar ch, PbByte byte ) )
{
    std::string result;
    while( !utf8.empty() ) {
        const Character first = FirstCharacter( utf8 );
        if( first.ch >= 0 && IsShown( first.ch ) )
            result += utf8.substr( 0, first.size );
        else
            result += escape( first.ch, PbByte( utf8[ 0 ] ) );
        utf8.remove_prefix( first.size );
    }
    return result;
}

} // namespace

std::string Utf8( const Owned< PbString > &text )
{
    const PbChar *chs    = pbStringBacking( text.Get() );
    const int64_t length = pbStringLength( text.Get() );
    std::string   utf8( size_t( pbCharsConvertToUtf8( nullptr, 0, chs, length, false ) ), '\0' );
    pbCharsConvertToUtf8( reinterpret_cast< PbByte * >( utf8.data() ), int64_t( utf8.size() ), chs, length, false );
    return utf8;
}

std::string_view Bytes( PbBuffer *buffer )
{
    return { reinterpret_cast< const char * >( pbBufferBacking( buffer ) ), size_t( pbBufferLength( buffer ) ) };
}

Owned< PbBuffer > MakeBuffer( std::string_view bytes )
{
    return Owned{ pbBufferCreateFromBytesCopy( bytes.data(), int64_t( bytes.size() ) ) };
}

Owned< PbString > TryString( std::string_view bytes )
{
    const Owned< PbBuffer > buffer = MakeBuffer( bytes );
    return Owned{ pbCharsetBufferToStringWithFlags( PB_CHARSET_UTF8, buffer.Get(), PB_CHARSET_FLAG_STRICT ) };
}

std::optional< std::string > TryUtf8( std::string_view bytes )
{
    if( !TryString( bytes ) ) return std::nullopt;
    return std::string( bytes );
}

std::string Escape( std::string_view utf8 )
{
    return EscapeWith( utf8, []( PbChar ch, PbByte byte ) -> std::string {
        switch( ch ) {
        case '\t': return "\\t";
        case '\n': return "\\n";
        case '\r': return "\\r";
        default: break;
        }
        if( ch < 0x80 ) return Format( "\\x%02X", byte );
        return Format( ch > 0xFFFF ? "\\u{%X}" : "\\u%04X", unsigned( ch ) );
    } );
}

std::string EscapeLines( std::string_view text )
{
    std::string result;
    while( !text.empty() ) {
        const size_t     end  = std::min( text.find( '\n' ), text.size() );
        std::string_view line = text.substr( 0, end );
        if( line.ends_with( '\r' ) ) line.remove_suffix( 1 );
        result += Escape( line ) + '\n';
        text.remove_prefix( std::min( end + 1, text.size() ) );
    }
    return result;
}

std::string EscapeJson( std::string_view utf8 )
{
    return EscapeWith( utf8, []( PbChar ch, PbByte ) -> std::string {
        if( ch == '\n' ) return "\n"; // between values; within a string it is escaped already
        if( ch < 0x10000 ) return Format( "\\u%04x", unsigned( ch ) );
        const auto beyond = unsigned( ch ) - 0x10000;
        return Format( "\\u%04x", 0xD800 + ( beyond >> 10 ) ) + Format( "\\u%04x", 0xDC00 + ( beyond & 0x3FF ) );
    } );
}

Shown ShowFirst( std::string_view utf8 )
{
    static const locale_t unicode = newlocale( LC_CTYPE_MASK, "C.UTF-8", nullptr );

    const Character first = FirstCharacter( utf8 );
    Shown           shown{ Escape( utf8.substr( 0, first.size ) ), first.size, 0 };
    shown.columns = shown.text.size();
    if( shown.text != utf8.substr( 0, first.size ) || first.ch < 0x80 || !unicode ) return shown;
    const locale_t before = uselocale( unicode );
    shown.columns         = size_t( std::max( wcwidth( wchar_t( first.ch ) ), 0 ) );
    uselocale( before );
    return shown;
}

std::string Quote( std::string_view bytes ) { return '"' + Escape( bytes ) + '"'; }

std::string Count( int64_t number, std::string_view noun )
{
    return std::to_string( number ) + ' ' + std::string( noun ) + ( number == 1 ? "" : "s" );
}

} // namespace tool
