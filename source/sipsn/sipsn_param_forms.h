// Forms of values that begin with their parameters, with a star, or with two words: what several types beyond RFC 3261
// have. C++ only; never installed.
#pragma once

#include "sipsn_form.h"

namespace sipsn {

// One character and no blanks around it.
template< char ch > int64_t SkipOne( const PbChar *chs, int64_t length ) { return length > 0 && chs[ 0 ] == ch; }

// Whether every member that is never absent is there.
template< class T > bool IsComplete( T &value )
{
    return pb::membersOf< T >.All( [ & ]( const auto &row ) { return row.optional || pb::Has( value.*row.member ); } );
}

// The first member of the table, then parameters, some of which are never absent.
template< class T > struct CompleteParams : Params< T >
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref value{ Params< T >::TryDecode( in ) };
        if( !value ) return nullptr;
        return IsComplete( *value.Get() ) || in.Lacks( "a parameter that is never absent" ) ? value.Detach() : nullptr;
    }
};

// Parameters and nothing else.
template< class T, Production *separator = sipsn___SkipSemi, char written = ';' > struct OnlyParams
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref value{ New< T >() };
        if( !TryDecodeOnlyParams( in, *value.Get(), separator ) ) return nullptr;
        return IsComplete( *value.Get() ) || in.Lacks( "a parameter that is never absent" ) ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const { WriteParams( out, value, Between{ written } ); }
};

// "*" and parameters.
template< class T > struct StarAndParams
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        if( !in.Take( PbChar{ '*' } ) ) return nullptr;
        pb::Ref value{ New< T >() };
        return TryDecodeParams( in, *value.Get() ) ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const
    {
        out.Char( '*' );
        WriteParams( out, value );
    }
};

// A character as refusals name it.
template< char ch > inline constexpr char quotedChar[] = { '"', ch, '"', 0 };

// The first two members of the table with a separator between them, then parameters, where the type has some.
template< class T, Production *separator, char written > struct PairAndParams
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        constexpr auto second = std::get< 1 >( pb::membersOf< T >.rows );
        pb::Ref        value{ New< T >() };
        if( !TakeFirst( in, *value.Get() ) || !in.Take( separator, quotedChar< written > ) ) return nullptr;
        ( *value.Get() ).*second.member = TryTake( in, *second.rule );
        if( !pb::Has( ( *value.Get() ).*second.member ) ) return nullptr;
        if constexpr( requires { value->genericParams; } )
            return TryDecodeParams( in, *value.Get() ) ? value.Detach() : nullptr;
        else
            return in.AtEnd() ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const
    {
        constexpr auto second = std::get< 1 >( pb::membersOf< T >.rows );
        WriteFirst( out, value );
        out.Char( written );
        sipsn::Write( out, *second.rule, value.*second.member );
        if constexpr( requires { value.genericParams; } ) WriteParams( out, value );
    }
};

} // namespace sipsn
