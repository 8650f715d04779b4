// Writing wire text: what encoders append to. C++ only; never installed.
#pragma once

#include "sipsn_internal.h"

#include <algorithm>
#include <string_view>

namespace sipsn {

// Gathers characters on the stack, so that a text costs one allocation, that of its string.
class TextWriter
{
public:
    TextWriter()                                = default;
    TextWriter( const TextWriter & )            = delete;
    TextWriter &operator=( const TextWriter & ) = delete;
    ~TextWriter()
    {
        if( begin_ != fixed_ ) pbMemFree( begin_ );
    }

    void Char( PbChar ch ) { *Extend( 1 ) = ch; }
    void Chars( const PbChar *chs, int64_t length ) { std::copy_n( chs, length, Extend( length ) ); }
    void Text( PbString *text ) { Chars( text->chs, text->length ); }
    void Ascii( std::string_view text ) { std::copy( text.begin(), text.end(), Extend( int64_t( text.size() ) ) ); }
    void Int( int64_t number ); // in decimal

    // The text of a fresh string, which is released.
    void Take( PbString *owned )
    {
        pb::Ref text{ owned };
        Text( text.Get() );
    }

    PbString *ToString() const { return pbStringCreateFromCharsCopy( begin_, end_ - begin_ ); }

private:
    // Room for `count` more characters, which the caller writes.
    PbChar *Extend( int64_t count )
    {
        if( limit_ - end_ < count ) Grow( count );
        return std::exchange( end_, end_ + count );
    }
    void Grow( int64_t count );

    PbChar  fixed_[ 512 ];
    PbChar *begin_ = fixed_;
    PbChar *end_   = fixed_;
    PbChar *limit_ = std::end( fixed_ );
};

// The string that `write` makes.
template< class Write > PbString *TextOf( Write write )
{
    TextWriter out;
    write( out );
    return out.ToString();
}

} // namespace sipsn
