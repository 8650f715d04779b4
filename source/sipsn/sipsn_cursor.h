// Reading text with the scanner's productions. All decoders go through this. C++ only; never installed.
//
//     Cursor in{ chs, length };
//     Span   protocol = in.Take( sipsn___SkipToken );
//     if( !protocol ) return nullptr;
//     while( !in.AtEnd() ) {
//         if( !in.Take( sipsn___SkipSemi ) ) return nullptr;
//         if( Span digits = in.Param( "cause", sipsn___SkipDigits ) ) ...
//     }
#pragma once

#include "pb/pb_string.h"
#include "sipsn_char_class.h"
#include "sipsn_skip_internal.h"

#include <algorithm>

namespace sipsn {

using Production   = int64_t( const PbChar *chs, int64_t length );
using NumberedName = int64_t( const PbChar *chs, int64_t length, int64_t *number );

// A run of characters in somebody else's text; empty stands for "no match".
struct Span
{
    const PbChar *chs    = nullptr;
    int64_t       length = 0;

    explicit  operator bool() const { return length > 0; }
    PbString *ToString() const { return pbStringCreateFromCharsCopy( chs, length ); } // the caller's reference
};

// Moves over a text from front to back. What does not match consumes nothing.
class Cursor
{
public:
    Cursor( const PbChar *chs, int64_t length ) : rest_{ chs, length } {}
    explicit Cursor( Span text ) : rest_{ text } {}

    bool AtEnd() const { return rest_.length == 0; }
    Span Rest() const { return rest_; }

    Span Take( Production *production ) { return Advance( production( rest_.chs, rest_.length ) ); }
    Span Take( NumberedName *production, int64_t &number )
    {
        return Advance( production( rest_.chs, rest_.length, &number ) );
    }
    Span Take( PbChar ch ) { return Advance( rest_.length > 0 && rest_.chs[ 0 ] == ch ); }

    // So many digits; what follows them is not looked at.
    Span Digits( int64_t count )
    {
        const bool found = rest_.length >= count && sipsn___SkipDigits( rest_.chs, count ) == count;
        return Advance( found ? count : 0 );
    }

    // The text in exactly this letter case.
    template< size_t N > Span Text( const char ( &text )[ N ] )
    {
        constexpr int64_t length = N - 1; // without the terminating zero
        const bool        found  = rest_.length >= length && std::equal( text, text + length, rest_.chs );
        return Advance( found ? length : 0 );
    }

    // The keyword in any letter case. What follows it is not looked at: "tagged" begins with the keyword "tag".
    template< size_t N > Span Keyword( const char ( &keyword )[ N ] )
    {
        constexpr int64_t length = N - 1; // without the terminating zero
        if( rest_.length < length ) return {};
        for( int64_t n = 0; n < length; ++n )
            if( AsciiLower( rest_.chs[ n ] ) != AsciiLower( keyword[ n ] ) ) return {};
        return Advance( length );
    }

    // The value of `keyword EQUAL value`, the keyword in any letter case.
    template< size_t N > Span Param( const char ( &keyword )[ N ], Production *value )
    {
        Cursor ahead = *this;
        if( !ahead.Keyword( keyword ) || !ahead.Take( sipsn___SkipEqual ) ) return {};
        const Span found = ahead.Take( value );
        if( found ) *this = ahead;
        return found;
    }

private:
    Span Advance( int64_t count )
    {
        const Span taken{ rest_.chs, count };
        rest_ = { rest_.chs + count, rest_.length - count };
        return taken;
    }

    Span rest_;
};

} // namespace sipsn
