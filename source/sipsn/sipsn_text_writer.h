// Writing wire text: what encoders append to, and the parameters behind a value. C++ only; never installed.
#pragma once

#include "sipsn_internal.h"

#include <algorithm>
#include <array>
#include <string_view>

struct SipsnGenericParams;
struct SipsnGenericParam;

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

// Writes the parameters of a value: the typed members in the order of the calls, each only when it is present, and then
// the generic parameters but for those whose name a typed member has taken.
class ParamWriter
{
public:
    ParamWriter( TextWriter &out, SipsnGenericParams *generic ) : out_{ out }, generic_{ generic } {}

    void Text( std::string_view name, PbString *value ) // as it stands; null is absent
    {
        if( !value ) return;
        Begin( name );
        out_.Text( value );
    }
    void Owned( std::string_view name, PbString *owned ) // the same for a fresh string, which is released
    {
        pb::Ref value{ owned };
        Text( name, value.Get() );
    }
    void Int( std::string_view name, int64_t value ) // -1 is absent
    {
        if( value == -1 ) return;
        Begin( name );
        out_.Int( value );
    }
    void Quoted( std::string_view name, PbString *value ) // between double quotes, without escapes
    {
        if( !value ) return;
        Begin( name );
        out_.Char( '"' );
        out_.Text( value );
        out_.Char( '"' );
    }
    void Flag( std::string_view name, bool present )
    {
        if( present ) Mark( name );
    }
    void Generic(); // last

private:
    void Begin( std::string_view name )
    {
        Mark( name );
        out_.Char( '=' );
    }
    void Mark( std::string_view name )
    {
        PB_ASSERT( takenCount_ < taken_.size() );
        taken_[ takenCount_++ ] = name;
        out_.Char( ';' );
        out_.Ascii( name );
    }
    bool IsTaken( PbString *name ) const;

    TextWriter                       &out_;
    SipsnGenericParams               *generic_;
    std::array< std::string_view, 8 > taken_; // as many as the type with the most has
    size_t                            takenCount_ = 0;
};

} // namespace sipsn
