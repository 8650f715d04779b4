// Runs of characters of one class, which scanners are made of. C++ only; never installed.
//
// A table has bits for each ASCII character, one for each class that it belongs to. A class is given as its bit;
// several bits or-ed together are the union of their classes. No class holds characters beyond ASCII.
#pragma once

#include "pb_types.h"

#include <array>

namespace pb {

template< class Bits > using ClassTable = std::array< Bits, 128 >;

template< class Bits > constexpr bool IsIn( const ClassTable< Bits > &table, Bits mask, PbChar ch )
{
    return uint32_t( ch ) < table.size() && ( table[ uint32_t( ch ) ] & mask ) != 0;
}

// How many characters from the first on are in the class, or are not. Four at a time are tested for ASCII at once.
template< bool in, class Bits >
inline int64_t CountRun( const ClassTable< Bits > &table, Bits mask, const PbChar *chs, int64_t length )
{
    const auto belongs = [ & ]( uint32_t ch ) { return ( ( table[ ch ] & mask ) != 0 ) == in; };

    int64_t n = 0;
    for( ; n + 4 <= length; n += 4 ) {
        const uint32_t a = uint32_t( chs[ n ] ), b = uint32_t( chs[ n + 1 ] );
        const uint32_t c = uint32_t( chs[ n + 2 ] ), d = uint32_t( chs[ n + 3 ] );
        if( ( a | b | c | d ) >= table.size() ) break;
        if( !belongs( a ) ) return n;
        if( !belongs( b ) ) return n + 1;
        if( !belongs( c ) ) return n + 2;
        if( !belongs( d ) ) return n + 3;
    }
    while( n < length && IsIn( table, mask, chs[ n ] ) == in ) ++n;
    return n;
}

} // namespace pb
