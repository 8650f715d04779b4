// Short ways between C++ texts and PbString, and a deleter for references, for the tests.
#pragma once

#include "pb/pb.h"
#include "pb/pb_frame.h"

#include <string>
#include <string_view>

// "text" as characters, for functions that take an array and a length.
inline std::basic_string< PbChar > Chars( std::string_view utf8 )
{
    pb::Ref string{ pbStringCreateFromCstr( utf8.data(), int64_t( utf8.size() ) ) };
    return { pbStringBacking( string.Get() ), size_t( pbStringLength( string.Get() ) ) };
}

inline pb::Ref< PbString > Str( std::string_view utf8 )
{
    return pb::Ref{ pbStringCreateFromCstr( utf8.data(), int64_t( utf8.size() ) ) };
}

// The string as UTF-8; "(null)" for null. Text() keeps the reference, Take() releases it.
inline std::string Text( PbString *string )
{
    if( !string ) return "(null)";
    const PbChar *chs    = pbStringBacking( string );
    const int64_t length = pbStringLength( string );
    std::string   text( size_t( pbCharsConvertToUtf8( nullptr, 0, chs, length, false ) ), '\0' );
    pbCharsConvertToUtf8( reinterpret_cast< PbByte * >( text.data() ), int64_t( text.size() ), chs, length, false );
    return text;
}

inline std::string Take( PbString *owned )
{
    pb::Ref string{ owned };
    return Text( string.Get() );
}
