// What values and the lines of single-valued header fields look like: forms that several types have, and what every
// form is read and written with. C++ only; never installed.
//
// A form reads a value with any cursor, which gives null where the text is none, and writes it:
//
//     template< class Link > SipsnReason *TryDecode( BasicCursor< Link > &in ) const;
//     void                                Write( TextWriter &out, SipsnReason &reason ) const;
#pragma once

#include "sipsn_generic_params.h"
#include "sipsn_members.h"
#include "sipsn_name_addr.h"

namespace sipsn {

// ---- Parameters ------------------------------------------------------------------------------------

// Reads one generic parameter, name and value, in one pass; null when there is none, or when its "=" has no valid
// value.
template< class Link > SipsnGenericParam *TakeGenericParam( BasicCursor< Link > &in );

// The parameter at an index, without a reference of its own, and its name.
SipsnGenericParam *PeekParamAt( SipsnGenericParams *params, int64_t index );
PbString          *PeekName( SipsnGenericParam *param );

// Takes over the reference; a parameter of the same name is replaced.
void SetParamOwned( SipsnGenericParams **params, SipsnGenericParam *param );

void WriteGenericParam( TextWriter &out, SipsnGenericParam *param );

// What the text behind the parameters does when no SEMI begins it.
enum class Rest
{
    fails,
    isIgnored
};

// Reads a parameter that is a member; which one is said by the table.
template< class Link, class T > [[gnu::always_inline]] inline bool TakeTypedParam( BasicCursor< Link > &in, T &value )
{
    return !pb::membersOf< T >.All( [ & ]( const auto &row ) __attribute__( ( always_inline ) ) {
        if constexpr( requires { row.Take( in, value ); } )
            return !row.Take( in, value );
        else
            return true;
    } );
}

// Reads *( SEMI parameter ) up to the end of the text. `takeTyped( in )` reads a parameter that is a member and says
// whether it did; every other one goes into the generic parameters. What a typed parameter leaves unread must begin
// with the next SEMI.
template< class Link, class TakeTyped >
[[gnu::always_inline]] inline bool TryDecodeParams( BasicCursor< Link > &in, SipsnGenericParams **generic,
                                                    TakeTyped takeTyped, Rest rest )
{
    while( !in.AtEnd() ) {
        if( !in.Take( sipsn___SkipSemi ) ) return rest == Rest::isIgnored;
        if( takeTyped( in ) ) continue;
        SipsnGenericParam *param = TakeGenericParam( in );
        if( !param ) return false;
        SetParamOwned( generic, param );
    }
    return true;
}

// The same with the members that the value's table calls parameters.
template< class Link, class T >
[[gnu::always_inline]] inline bool TryDecodeParams( BasicCursor< Link > &in, T &value, Rest rest = Rest::fails )
{
    const auto takeTyped = [ & ]( BasicCursor< Link > & at ) __attribute__( ( always_inline ) )
    {
        return TakeTypedParam( at, value );
    };
    return TryDecodeParams( in, &value.genericParams, takeTyped, rest );
}

// Reads parameter *( separator parameter ) up to the end of the text, or nothing: a value that consists
// of them alone.
template< class Link, class T > bool TryDecodeOnlyParams( BasicCursor< Link > &in, T &value, Production *separator )
{
    if( in.AtEnd() ) return true;
    do {
        if( TakeTypedParam( in, value ) ) continue;
        SipsnGenericParam *param = TakeGenericParam( in );
        if( !param ) return false;
        SetParamOwned( &value.genericParams, param );
    } while( in.Take( separator ) );
    return in.AtEnd();
}

// Whether a member that is present is written under this name, in the place of a generic parameter.
template< class T > bool HasTypedParam( T &value, PbString *name )
{
    const auto isNamed = [ & ]( std::string_view param ) {
        return std::equal( param.begin(), param.end(), name->chs + 0, name->chs + name->length );
    };
    return !pb::membersOf< T >.All( [ & ]( const auto &row ) {
        if constexpr( requires { row.param; } )
            return row.param.empty() || !pb::Has( value.*row.member ) || !isNamed( row.param );
        else
            return true;
    } );
}

// Writes the generic parameters but for those that `isTaken( name )` keeps away.
template< class IsTaken, class Separators >
void WriteGenericParams( TextWriter &out, SipsnGenericParams *params, IsTaken isTaken, Separators &separators )
{
    for( int64_t at = 0, length = sipsnGenericParamsLength( params ); at < length; ++at ) {
        SipsnGenericParam *param = PeekParamAt( params, at );
        if( isTaken( PeekName( param ) ) ) continue;
        separators.Begin( out );
        WriteGenericParam( out, param );
    }
}

// The rows in the order in which their parameters are written: that of the table, or the type's `WireOrder`.
template< class T, size_t... at > consteval auto RowsAt( std::index_sequence< at... > )
{
    return pb::Members{ std::get< at >( pb::membersOf< T >.rows )... };
}
template< class T > consteval auto RowsAsWritten()
{
    if constexpr( requires { typename T::WireOrder; } ) {
        static_assert( T::WireOrder::size() == pb::membersOf< T >.count );
        return RowsAt< T >( typename T::WireOrder{} );
    } else
        return pb::membersOf< T >;
}
template< class T > inline constexpr auto rowsAsWritten = RowsAsWritten< T >();

// Writes the members that are parameters, and the generic parameters but for those of a name that a member has taken.
template< class T, class Separators = Semicolons >
void WriteParams( TextWriter &out, T &value, Separators separators = {} )
{
    rowsAsWritten< T >.All( [ & ]( const auto &row ) __attribute__( ( always_inline ) ) {
        if constexpr( requires { row.Write( out, value, separators ); } ) row.Write( out, value, separators );
        return true;
    } );
    const auto isTaken = [ & ]( PbString *name ) { return HasTypedParam( value, name ); };
    WriteGenericParams( out, value.genericParams, isTaken, separators );
}

// A new object. Its parameters and items are empty: they are never absent.
template< class T > T *New()
{
    T *value = pb::New< T >();
    pb::membersOf< T >.All( [ & ]( const auto &row ) __attribute__( ( always_inline ) ) {
        if constexpr( requires { row.Initial(); } ) value->*row.member = row.Initial();
        return true;
    } );
    return value;
}

// The same with one member, of the type itself or of what it inherits; takes over the reference.
template< class T = void, class Owner, class M > auto *NewWith( M Owner::*member, std::type_identity_t< M > owned )
{
    auto *value    = New< std::conditional_t< std::is_void_v< T >, Owner, T > >();
    value->*member = owned;
    return value;
}

// ---- Forms -----------------------------------------------------------------------------------------

// One row by itself: a number or a text, which is the member `first` of the table.
template< class Link, class T > [[gnu::always_inline]] inline bool TakeFirst( BasicCursor< Link > &in, T &value )
{
    constexpr auto row = std::get< 0 >( pb::membersOf< T >.rows );
    value.*row.member  = TryTake( in, *row.rule );
    return pb::Has( value.*row.member );
}
template< class T > void WriteFirst( TextWriter &out, T &value )
{
    constexpr auto row = std::get< 0 >( pb::membersOf< T >.rows );
    Write( out, *row.rule, value.*row.member );
}

// The first member of the table and nothing else.
template< class T > struct Number
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref value{ New< T >() };
        return TakeFirst( in, *value.Get() ) && in.AtEnd() ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const { WriteFirst( out, value ); }
};

// The first member of the table, then parameters.
template< class T > struct Params
{
    Rest        rest    = Rest::fails;
    Production *ignored = nullptr; // what may stand between, behind blanks, and is not kept

    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref value{ New< T >() };
        if( !TakeFirst( in, *value.Get() ) ) return nullptr;
        if( ignored ) {
            in.Take( sipsn___SkipLws );
            in.Take( ignored );
        }
        return TryDecodeParams( in, *value.Get(), rest ) ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const
    {
        WriteFirst( out, value );
        WriteParams( out, value );
    }
};

// An address, kept in `iri` and, where the type has one, `displayName`; then parameters, where the type has some.
template< class T > struct Address
{
    Production *bare      = sipsn___SkipAddrSpec; // an address without angle brackets; null: there must be some
    Production *bareAgain = nullptr; // reads it anew where something other than parameters stands behind it

    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        const BasicCursor< Link > begin = in;
        if( T *value = TryDecode( in, bare ) ) return value;
        if( !bareAgain ) return nullptr;
        in = begin;
        return TryDecode( in, bareAgain );
    }

    void Write( TextWriter &out, T &value ) const
    {
        if constexpr( requires { value.displayName; } )
            WriteNameAddr( out, value.displayName, value.iri );
        else
            WriteNameAddr( out, nullptr, value.iri );
        if constexpr( requires { value.genericParams; } ) WriteParams( out, value );
    }

private:
    template< class Link > T *TryDecode( BasicCursor< Link > &in, Production *bareForm ) const
    {
        NameAddr       address;
        constexpr bool named = requires( T value ) { value.displayName; };
        if( named ? !TryTakeNameAddr( in, &address, bareForm )
                  : !( address.iri = pb::Ref{ TryTakeBracketedIri( in ) } ) )
            return nullptr;
        pb::Ref value{ NewWith< T >( &T::iri, address.iri.Detach() ) };
        if constexpr( named ) value->displayName = address.displayName.Detach();
        if constexpr( requires { value->genericParams; } )
            return TryDecodeParams( in, *value.Get() ) ? value.Detach() : nullptr;
        else
            return in.AtEnd() ? value.Detach() : nullptr;
    }
};

// Words in a fixed order, each a member of the table with a blank behind it (RFC 3261 LWS).
template< class T > struct Words
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref    value{ New< T >() };
        bool       first = true;
        const bool good  = pb::membersOf< T >.All( [ & ]( const auto &row ) {
            if( !std::exchange( first, false ) && !in.Take( sipsn___SkipLws ) ) return false;
            ( *value.Get() ).*row.member = TryTake( in, *row.rule );
            return pb::Has( ( *value.Get() ).*row.member );
        } );
        return good && in.AtEnd() ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const
    {
        bool first = true;
        pb::membersOf< T >.All( [ & ]( const auto &row ) {
            if( !std::exchange( first, false ) ) out.Char( ' ' );
            sipsn::Write( out, *row.rule, value.*row.member );
            return true;
        } );
    }
};

} // namespace sipsn
