// The rows of the tables that types describe their members with. One table drives a type's life (creation, copying,
// release, comparison), the reading and writing of its parameters, and its description in the schema. C++ only; never
// installed.
//
//     static constexpr auto Members()
//     {
//         return pb::Members{
//             sipsn::Text( "host", &SipsnVia::host, sipsn::rule::host ),                      // always there
//             sipsn::OptionalInt( "port", &SipsnVia::port, sipsn::rule::port ),
//             sipsn::IntParam( "ttl", &SipsnVia::ttl, sipsn::rule::ttl ),                     // ;ttl=
//             sipsn::TextParam( "branch", &SipsnVia::branch, sipsn::rule::branch ),           // ;branch=
//             sipsn::OtherParams( &SipsnVia::genericParams ),                                     // all others
//         };
//     }
//
// Rows stand in the order in which objects compare and are described; parameters are read and written in it, too.
#pragma once

#include "sipsn_cursor.h"
#include "sipsn_generic_params.h"
#include "sipsn_schema.h"
#include "sipsn_text_writer.h"
#include "sipsn_version.h"

#include "in/in_address.h"

namespace sipsn {

// ---- Rules -----------------------------------------------------------------------------------------

using FromChars = PbString *( const PbChar *chs, int64_t length );

// What a text member may be; sipsn_rules.h has those that several types use.
struct TextRule
{
    const char *words; // "a host"
    bool ( *ok )( PbString *text );
    Production *production;                                                 // what matches it on the wire
    FromChars  *decoded                      = pbStringCreateFromCharsCopy; // how that is kept; null refuses it
    PbString *( *normal )( PbString *text )  = pb::Retain< PbString >;      // how what a caller sets is kept
    PbString *( *encoded )( PbString *text ) = nullptr;                     // how it is written; null: as it is

    static constexpr PbString *absent = nullptr;
};

// What a number may be.
struct IntRule
{
    const char *words;
    bool ( *ok )( int64_t number );
    int64_t     lowest, highest; // what `ok` says, for the schema
    Production *production;
    int64_t ( *decoded )( const PbChar *chs, int64_t length );
    PbString *( *encoded )( int64_t number ) = nullptr; // null: in decimal
    bool thousandths                         = false;

    static constexpr int64_t absent = -1;
};

// Reads a text by its rule, a new reference; null, and why, when there is none.
template< class Link > [[gnu::always_inline]] inline PbString *TryTake( BasicCursor< Link > &in, const TextRule &rule )
{
    const Span text  = in.Take( rule.production, rule.words );
    PbString  *taken = text ? rule.decoded( text.chs, text.length ) : nullptr;
    if( text && !taken ) in.Refuse( text, rule.words );
    return taken;
}

// Reads a number by its rule; -1, and why, when there is none.
template< class Link > [[gnu::always_inline]] inline int64_t TryTake( BasicCursor< Link > &in, const IntRule &rule )
{
    const Span text = in.Take( rule.production, rule.words );
    if( !text ) return IntRule::absent;
    const int64_t number = rule.decoded( text.chs, text.length );
    if( number >= rule.lowest && number <= rule.highest ) return number;
    in.Refuse( text, rule.words, rule.lowest, rule.highest );
    return IntRule::absent;
}

inline void Write( TextWriter &out, const TextRule &rule, PbString *text )
{
    if( rule.encoded )
        out.Take( rule.encoded( text ) );
    else
        out.Text( text );
}
inline void Write( TextWriter &out, const IntRule &rule, int64_t number )
{
    if( rule.encoded )
        out.Take( rule.encoded( number ) );
    else
        out.Int( number );
}

// ---- Writing parameters ----------------------------------------------------------------------------

// What stands before each parameter that is written: a semicolon; or a separator, and before the first another
// character or, where it is 0, nothing.
struct Semicolons
{
    void Begin( TextWriter &out ) { out.Char( ';' ); }
};
struct Between
{
    PbChar separator;
    PbChar next = 0;

    void Begin( TextWriter &out )
    {
        if( next ) out.Char( next );
        next = separator;
    }
};

template< class Separators > void BeginParam( TextWriter &out, Separators &separators, std::string_view name )
{
    separators.Begin( out );
    out.Ascii( name );
    out.Char( '=' );
}

// ---- What members keep of values from outside ------------------------------------------------------

struct TypeRecord; // sipsn_describe.h

// New references; null where the object is not what the member holds.
PbString *TryStoreText( PbObj *given, const TextRule &rule );
PbObj    *TryStoreObject( PbObj *given, PbSort *sort );
PbVector *TryStoreItems( PbObj *given, Production *item, const TextRule *rule, const TypeRecord *type );
PbDict   *TryStoreSet( PbObj *given, const TextRule &rule );

// ---- Rows ------------------------------------------------------------------------------------------

// A row says which member it is about, its name in the schema and, for a parameter, on the wire; whether it may be
// absent, and whether objects that differ in it differ at all. As for what rows do: `Take` reads `keyword EQUAL value`
// into the member, or reads nothing and says so, and the parameter is then a generic one. `Write` writes a parameter
// that is present. `TryStore` gives what the member keeps of a value from outside, null when it must not hold it.

// The row with one thing said otherwise.
template< class Row, class Field > constexpr Row With( Row row, Field Row::*field, std::type_identity_t< Field > value )
{
    row.*field = value;
    return row;
}

template< class T > struct TextRow
{
    std::string_view name;
    PbString *T::   *member;
    const TextRule  *rule;
    bool             optional = false;
    std::string_view param    = {};
    bool             quoted   = false; // as a parameter, between double quotes that the rule does not know
    bool             compared = true;

    static constexpr int64_t kind = SIPSN_SCHEMA_KIND_TEXT;

    template< class Link > [[gnu::always_inline]] bool Take( BasicCursor< Link > &in, T &value ) const
    {
        BasicCursor< Link > ahead = in;
        if( param.empty() || !ahead.Keyword( param ) || !ahead.Take( sipsn___SkipEqual ) ) return false;
        if( quoted && !ahead.Take( PbChar{ '"' } ) ) return false;
        PbString *taken = TryTake( ahead, *rule );
        if( !taken ) return false;
        if( quoted && !ahead.Take( PbChar{ '"' } ) ) {
            pb::Release( taken );
            return false;
        }
        pb::Set( value.*member, taken );
        in = ahead;
        return true;
    }

    template< class Separators >
    [[gnu::always_inline]] void Write( TextWriter &out, T &value, Separators &separators ) const
    {
        if( param.empty() || !( value.*member ) ) return;
        BeginParam( out, separators, param );
        if( quoted ) out.Char( '"' );
        sipsn::Write( out, *rule, value.*member );
        if( quoted ) out.Char( '"' );
    }

    PbString *TryStore( PbObj *given ) const { return TryStoreText( given, *rule ); }

    constexpr TextRow Required() const { return With( *this, &TextRow::optional, false ); }
};

template< class T > struct IntRow
{
    std::string_view name;
    int64_t T::     *member;
    const IntRule   *rule;
    bool             optional = false;
    std::string_view param    = {};
    bool             read     = true;    // else the parameter is written, but read as a generic one
    bool T::*excludes         = nullptr; // the flag that does not stand beside it
    bool     compared         = true;
    int64_t  kind             = rule->thousandths ? SIPSN_SCHEMA_KIND_THOUSANDTHS : SIPSN_SCHEMA_KIND_INTEGER;

    template< class Link > [[gnu::always_inline]] bool Take( BasicCursor< Link > &in, T &value ) const
    {
        BasicCursor< Link > ahead = in;
        if( param.empty() || !read || !ahead.Keyword( param ) || !ahead.Take( sipsn___SkipEqual ) ) return false;
        const int64_t taken = TryTake( ahead, *rule );
        if( taken == IntRule::absent ) return false;
        value.*member = taken;
        in            = ahead;
        return true;
    }

    template< class Separators >
    [[gnu::always_inline]] void Write( TextWriter &out, T &value, Separators &separators ) const
    {
        if( param.empty() || value.*member == IntRule::absent ) return;
        BeginParam( out, separators, param );
        sipsn::Write( out, *rule, value.*member );
    }

    constexpr IntRow Unread() const { return With( *this, &IntRow::read, false ); }
    constexpr IntRow NotCompared() const { return With( *this, &IntRow::compared, false ); }
    constexpr IntRow Excluding( bool T::*flag ) const { return With( *this, &IntRow::excludes, flag ); }
};

// A parameter without a value.
template< class T > struct FlagRow
{
    std::string_view name;
    bool T::        *member;
    std::string_view param;
    bool    lenient      = false;   // whether the parameter is read by its name alone, and what follows is left to fail
    int64_t T::*excludes = nullptr; // the number that does not stand beside it
    bool        compared = true;

    static constexpr int64_t kind     = SIPSN_SCHEMA_KIND_FLAG;
    static constexpr bool    optional = true;

    template< class Link > [[gnu::always_inline]] bool Take( BasicCursor< Link > &in, T &value ) const
    {
        BasicCursor< Link > ahead = in;
        if( !ahead.Keyword( param ) || ( !lenient && ahead.Sees( sipsn___SkipEqual ) ) ) return false;
        value.*member = true;
        in            = ahead;
        return true;
    }

    template< class Separators >
    [[gnu::always_inline]] void Write( TextWriter &out, T &value, Separators &separators ) const
    {
        if( !( value.*member ) ) return;
        separators.Begin( out );
        out.Ascii( param );
    }

    constexpr FlagRow Lenient() const { return With( *this, &FlagRow::lenient, true ); }
    constexpr FlagRow NotCompared() const { return With( *this, &FlagRow::compared, false ); }
    constexpr FlagRow Excluding( int64_t T::*number ) const { return With( *this, &FlagRow::excludes, number ); }
};

// A parameter that says "true" or, when it is absent, "false".
template< class T > struct TrueRow
{
    std::string_view name;
    bool T::        *member;
    std::string_view param;

    static constexpr int64_t kind         = SIPSN_SCHEMA_KIND_FLAG;
    static constexpr bool    optional     = true;
    static constexpr int64_t T::*excludes = nullptr;

    template< class Link > bool Take( BasicCursor< Link > &in, T &value ) const
    {
        BasicCursor< Link > ahead = in;
        if( !ahead.Keyword( param ) || !ahead.Take( sipsn___SkipEqual ) ) return false;
        const bool quoted{ ahead.Take( PbChar{ '"' } ) };
        const bool isTrue{ ahead.Keyword( "true" ) };
        if( !isTrue && !ahead.Keyword( "false" ) ) return false;
        if( quoted ? !ahead.Take( PbChar{ '"' } ) : ahead.Sees( sipsn___SkipToken ) ) return false;
        value.*member = isTrue;
        in            = ahead;
        return true;
    }

    template< class Separators > void Write( TextWriter &out, T &value, Separators &separators ) const
    {
        if( !( value.*member ) ) return;
        BeginParam( out, separators, param );
        out.Ascii( "true" );
    }
};

// An address, as a parameter.
template< class T > struct AddressRow
{
    std::string_view name;
    InAddress *T::  *member;
    std::string_view param;

    static constexpr int64_t kind     = SIPSN_SCHEMA_KIND_ADDRESS;
    static constexpr bool    optional = true;

    template< class Link > [[gnu::always_inline]] bool Take( BasicCursor< Link > &in, T &value ) const
    {
        Span text = in.Param( param, sipsn___SkipIpV6Address, "an IPv6 address" );
        if( !text ) text = in.Param( param, sipsn___SkipIpV4Address, "an IPv4 address" );
        if( !text ) return false;
        InAddress *ina = inAddressTryCreateFromChars( text.chs, text.length );
        PB_ASSERT( ina );
        pb::Set( value.*member, ina );
        return true;
    }

    template< class Separators > void Write( TextWriter &out, T &value, Separators &separators ) const
    {
        if( !( value.*member ) ) return;
        BeginParam( out, separators, param );
        out.Take( inAddressToStringShrink( value.*member ) );
    }

    InAddress *TryStore( PbObj *given ) const
    {
        return reinterpret_cast< InAddress * >( TryStoreObject( given, inAddressSort() ) );
    }
};

template< class T > struct VersionRow
{
    std::string_view name;
    SipsnVersion *T::*member;

    static constexpr int64_t kind     = SIPSN_SCHEMA_KIND_VERSION;
    static constexpr bool    optional = false;

    SipsnVersion *TryStore( PbObj *given ) const
    {
        return reinterpret_cast< SipsnVersion * >( TryStoreObject( given, sipsnVersionSort() ) );
    }
};

template< class T > struct TimeRow
{
    std::string_view name;
    PbTime *T::*member;

    static constexpr int64_t kind     = SIPSN_SCHEMA_KIND_TIME;
    static constexpr bool    optional = false;

    PbTime *TryStore( PbObj *given ) const
    {
        pb::Ref time{ reinterpret_cast< PbTime * >( TryStoreObject( given, pbTimeSort() ) ) };
        return time && pbTimeValid( time.Get() ) ? time.Detach() : nullptr;
    }
};

// Empty parameters, which most values have: a constant that whoever adds a parameter copies first.
SipsnGenericParams *NoParams();

// All parameters that no other row is about.
template< class T > struct ParamsRow
{
    SipsnGenericParams *T::*member;

    static SipsnGenericParams *Initial() { return NoParams(); }
    SipsnGenericParams        *TryStore( PbObj *given ) const
    {
        return reinterpret_cast< SipsnGenericParams * >( TryStoreObject( given, sipsnGenericParamsSort() ) );
    }

    static constexpr std::string_view name     = "params";
    static constexpr int64_t          kind     = SIPSN_SCHEMA_KIND_PARAMETERS;
    static constexpr bool             optional = false;
};

// Texts in order: tokens that keep their order, or the texts of values.
template< class T > struct ListRow
{
    std::string_view name;
    PbVector *T::    *member;
    Production       *item;                                  // what matches one
    FromChars        *stored  = pbStringCreateFromCharsCopy; // how that is kept
    const TextRule   *rule    = nullptr;                     // of tokens
    const TypeRecord *type    = nullptr;                     // of values
    bool              decodes = false;                       // whether only values that decode are items
    bool T::*star             = nullptr;                     // what "*" stands for instead of all items

    static constexpr int64_t kind     = SIPSN_SCHEMA_KIND_LIST;
    static constexpr bool    optional = false;

    static PbVector *Initial() { return pbVectorCreate(); }
    PbVector        *TryStore( PbObj *given ) const { return TryStoreItems( given, item, rule, type ); }

    constexpr ListRow Star( bool T::*flag ) const { return With( *this, &ListRow::star, flag ); }
};

// Tokens, each to itself.
template< class T > struct SetRow
{
    std::string_view name;
    PbDict *T::    *member;
    const TextRule *rule;

    static constexpr int64_t kind     = SIPSN_SCHEMA_KIND_SET;
    static constexpr bool    optional = false;

    static PbDict *Initial() { return pb___DictCreateWithCapacity( 8 ); } // as many as most lists of methods have
    PbDict        *TryStore( PbObj *given ) const { return TryStoreSet( given, *rule ); }
};

// ---- Making rows -----------------------------------------------------------------------------------

template< class T > constexpr auto Text( std::string_view name, PbString *T::*member, const TextRule &rule )
{
    return TextRow< T >{ .name = name, .member = member, .rule = &rule };
}
template< class T > constexpr auto OptionalText( std::string_view name, PbString *T::*member, const TextRule &rule )
{
    return TextRow< T >{ .name = name, .member = member, .rule = &rule, .optional = true };
}
template< class T > constexpr auto Int( std::string_view name, int64_t T::*member, const IntRule &rule )
{
    return IntRow< T >{ .name = name, .member = member, .rule = &rule };
}
template< class T > constexpr auto OptionalInt( std::string_view name, int64_t T::*member, const IntRule &rule )
{
    return IntRow< T >{ .name = name, .member = member, .rule = &rule, .optional = true };
}

// Parameters. In the schema they have their name on the wire, or the one given last.
template< class T >
constexpr auto TextParam( std::string_view param, PbString *T::*member, const TextRule &rule,
                          std::string_view name = {} )
{
    return TextRow< T >{
        .name = name.empty() ? param : name, .member = member, .rule = &rule, .optional = true, .param = param };
}
template< class T >
constexpr auto QuotedParam( std::string_view param, PbString *T::*member, const TextRule &rule,
                            std::string_view name = {} )
{
    return With( TextParam( param, member, rule, name ), &TextRow< T >::quoted, true );
}
template< class T >
constexpr auto IntParam( std::string_view param, int64_t T::*member, const IntRule &rule, std::string_view name = {} )
{
    return IntRow< T >{
        .name = name.empty() ? param : name, .member = member, .rule = &rule, .optional = true, .param = param };
}
template< class T > constexpr auto FlagParam( std::string_view param, bool T::*member, std::string_view name = {} )
{
    return FlagRow< T >{ .name = name.empty() ? param : name, .member = member, .param = param };
}
template< class T > constexpr auto TrueParam( std::string_view param, bool T::*member )
{
    return TrueRow< T >{ .name = param, .member = member, .param = param };
}
template< class T > constexpr auto AddressParam( std::string_view param, InAddress *T::*member )
{
    return AddressRow< T >{ .name = param, .member = member, .param = param };
}

template< class T > constexpr auto Version( std::string_view name, SipsnVersion *T::*member )
{
    return VersionRow< T >{ .name = name, .member = member };
}
template< class T > constexpr auto Time( std::string_view name, PbTime *T::*member )
{
    return TimeRow< T >{ .name = name, .member = member };
}
template< class T > constexpr auto OtherParams( SipsnGenericParams *T::*member ) { return ParamsRow< T >{ member }; }

template< class T > constexpr auto Items( std::string_view name, PbVector *T::*member, const TextRule &rule )
{
    return ListRow< T >{
        .name = name, .member = member, .item = rule.production, .stored = rule.decoded, .rule = &rule };
}
template< class T >
constexpr auto Values( std::string_view name, PbVector *T::*member, Production *item, const TypeRecord &type )
{
    return ListRow< T >{ .name = name, .member = member, .item = item, .type = &type };
}
template< class T > constexpr auto Items( std::string_view name, PbDict *T::*member, const TextRule &rule )
{
    return SetRow< T >{ .name = name, .member = member, .rule = &rule };
}

// The same of values that are items only when they decode: `item` need not know their grammar.
template< class T >
constexpr auto DecodedValues( std::string_view name, PbVector *T::*member, Production *item, const TypeRecord &type )
{
    return With( Values( name, member, item, type ), &ListRow< T >::decodes, true );
}

} // namespace sipsn
