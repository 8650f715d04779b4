// Short ways between texts, structured values and header fields, for the tests.
#pragma once

#include "message_text.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <vector>

// A value decoded from a text; null when it does not decode.
template< auto tryDecode > auto Decoded( std::string_view text )
{
    const auto chs = Chars( text );
    return pb::Ref{ tryDecode( chs.data(), int64_t( chs.size() ) ) };
}

inline pb::Ref< SipsnMessageHeader > Field( const std::string &name, const std::vector< std::string > &lines )
{
    pb::Ref field{ sipsnMessageHeaderCreateCstr( name.c_str(), -1 ) };
    for( const std::string &line : lines ) sipsnMessageHeaderAppendLine( field.Slot(), Str( line ).Get() );
    return field;
}

// The header of one line, or of several, as an object of its type.
template< auto tryDecode > auto Header( const char *name, const std::vector< std::string > &lines )
{
    return pb::Ref{ tryDecode( Field( name, lines ).Get() ) };
}

inline std::vector< std::string > Lines( SipsnMessageHeader *field )
{
    std::vector< std::string > lines;
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( field ); ++at )
        lines.push_back( Take( sipsnMessageHeaderLineAt( field, at ) ) );
    return lines;
}
