// Short ways between C++ texts and PbString, and what several tests expect.
#pragma once

#include "pb/pb.h"
#include "pb/pb_frame.h"

#include <gmock/gmock.h>

#include <iterator>
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

// A text that has "|" behind what is matched of it.
struct MarkedText
{
    std::basic_string< PbChar > all; // without the mark
    int64_t                     matched;

    explicit MarkedText( std::string_view utf8 )
        : all{ Chars( utf8.substr( 0, utf8.find( '|' ) ) ) }, matched{ int64_t( all.size() ) }
    {
        all += Chars( utf8.substr( utf8.find( '|' ) + 1 ) );
    }
};

// The call ends the process because this condition failed.
#define EXPECT_ABORT( condition, ... )                                                                                 \
    EXPECT_DEATH( __VA_ARGS__, testing::HasSubstr( "condition \"" condition "\" failed" ) )

// Objects that are given in ascending order compare so, each with each.
template< class Objects, class Compare > void ExpectAscending( const Objects &objects, Compare compare )
{
    for( auto a = std::begin( objects ); a != std::end( objects ); ++a )
        for( auto b = std::begin( objects ); b != std::end( objects ); ++b ) {
            const int64_t order = compare( a->Get(), b->Get() );
            EXPECT_EQ( ( order > 0 ) - ( order < 0 ), ( a > b ) - ( a < b ) )
                << std::distance( std::begin( objects ), a ) << " and " << std::distance( std::begin( objects ), b );
        }
}
