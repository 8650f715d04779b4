// Text of the libraries as UTF-8, and in a form that a terminal shows and does not obey.
#pragma once

#include "owned.h"

#include <optional>
#include <string>
#include <string_view>

namespace tool {

std::string Utf8( const Owned< PbString > &text );

// The bytes as they are.
std::string_view Bytes( PbBuffer *buffer );

Owned< PbBuffer > MakeBuffer( std::string_view bytes );

// Null when the bytes are not UTF-8.
Owned< PbString >            TryString( std::string_view bytes );
std::optional< std::string > TryUtf8( std::string_view bytes );

// Control characters, marks that turn the direction of writing and other characters without a shape as \n, \x1B or
// \u202E, bytes that are no UTF-8 as \xFF. Everything else stays.
std::string Escape( std::string_view utf8 );

// The same line by line: line ends stay, as the terminal's own.
std::string EscapeLines( std::string_view text );

// The same with escapes that JSON knows, for JSON text, in which such characters stand within strings alone.
std::string EscapeJson( std::string_view utf8 );

// The first character of a text that is not empty: its form after Escape, the bytes it takes in the text, and the
// columns it takes on a terminal.
struct Shown
{
    std::string text;
    size_t      size;
    size_t      columns;
};
Shown ShowFirst( std::string_view utf8 );

// The text escaped and in quotes, for a message about it.
std::string Quote( std::string_view bytes );

// "1 byte", "2 bytes".
std::string Count( int64_t number, std::string_view noun );

} // namespace tool
