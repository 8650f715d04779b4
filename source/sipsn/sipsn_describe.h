// What the schema knows of types and families: records that are made from the tables of members and from the forms, in
// the files of the types. C++ only; never installed.
#pragma once

#include "sipsn_form.h"

namespace sipsn {

// ---- Records ---------------------------------------------------------------------------------------

// A member as the schema shows it, and what its functions do with it. The functions of the other kind are null.
struct MemberRecord
{
    SipsnSchemaMember shown;

    void ( *del )( PbObj **obj )                          = nullptr; // null: the member is never absent
    int64_t ( *number )( PbObj *obj )                     = nullptr;
    PbObj *( *object )( PbObj *obj )                      = nullptr;
    bool ( *trySetNumber )( PbObj **obj, int64_t number ) = nullptr;
    bool ( *trySetObject )( PbObj **obj, PbObj *value )   = nullptr;
};

// A text form: null where a type has none.
struct TextRecord
{
    PbObj *( *tryDecode )( const PbChar *chs, int64_t length );
    PbString *( *encode )( PbObj *value );
    bool ( *watch )( Span text, Watch &watch ); // whether it decodes
};

struct TypeRecord
{
    SipsnSchemaType shown;
    PbSort *( *sort )( void );
    const MemberRecord *members;
    PbObj *( *create )();
    TextRecord text;
    bool ( *isWhole )( PbObj *obj ) = nullptr; // what one member demands of the others, where they are all there
};

// What a header family adds to its type; sipsn_families.inc has the rest.
struct ShapeRecord
{
    const TypeRecord *type;
    PbObj *( *tryDecode )( SipsnMessageHeader *header );
    SipsnMessageHeader *( *encode )( PbObj *hdr );
    bool ( *watchLine )( Span line, Watch &watch ); // whether the line decodes by itself, values of lists included
    int64_t           shape;
    const TypeRecord *itemType;
};

// ---- Members ---------------------------------------------------------------------------------------

// Compilers know of many constants that they are not null, and warn of the question.
template< class P > constexpr bool IsSet( P pointer ) { return pointer != nullptr; }

// What `of( pointer )` gives, or null for null.
template< class T, class Of > constexpr auto OrNull( T *pointer, Of of ) { return pointer ? of( pointer ) : nullptr; }

// The list that "*" stands for.
PbObj *StarItems();
bool   IsStarItems( PbObj *given );

// The n-th row of a type, for functions without state.
template< class T, size_t n > struct MemberFunctions
{
    static constexpr auto row = std::get< n >( pb::membersOf< T >.rows );

    using Member = std::remove_cvref_t< decltype( std::declval< T & >().*row.member ) >;

    static constexpr bool isNumber = std::integral< Member >;

    static T &At( PbObj *obj ) { return *reinterpret_cast< T * >( obj ); }
    static T &OwnAt( PbObj **obj ) // copy on write
    {
        T *own = reinterpret_cast< T * >( *obj );
        pb::MakeUnique( own );
        *obj = pb::AsObj( own );
        return *own;
    }

    static int64_t Number( PbObj *obj ) { return int64_t( At( obj ).*row.member ); }

    static PbObj *Object( PbObj *obj )
    {
        if constexpr( HasStar() )
            if( At( obj ).*row.star && pbVectorLength( At( obj ).*row.member ) == 0 ) return StarItems();
        if constexpr( std::same_as< Member, PbDict * > )
            return pbVectorObj( pbDictKeysVector( At( obj ).*row.member ) );
        else
            return pb::AsObj( pb::Retain( At( obj ).*row.member ) );
    }

    static bool TrySetNumber( PbObj **obj, int64_t number )
    {
        if( number < lowest || number > highest || !IsOk( number ) ) return false;
        T &value          = OwnAt( obj );
        value.*row.member = Member( number );
        if( IsSet( row.excludes ) && pb::Has( value.*row.member ) ) pb::Del( value.*row.excludes );
        return true;
    }

    static bool TrySetObject( PbObj **obj, PbObj *given )
    {
        if constexpr( HasStar() )
            if( IsStarItems( given ) ) {
                T &value        = OwnAt( obj );
                value.*row.star = true;
                pbVectorClear( &( value.*row.member ) );
                return true;
            }
        const auto stored = row.TryStore( given );
        if( !stored ) return false;
        T &value = OwnAt( obj );
        pb::Set( value.*row.member, stored );
        if constexpr( HasStar() ) value.*row.star = false;
        return true;
    }

    static void Del( PbObj **obj ) { pb::Del( OwnAt( obj ).*row.member ); }

    static constexpr bool HasStar()
    {
        if constexpr( requires { row.star; } )
            return IsSet( row.star );
        else
            return false;
    }

    static constexpr bool IsOk( int64_t number )
    {
        if constexpr( requires { row.rule; } )
            return row.rule->ok( number );
        else
            return true;
    }

    static constexpr int64_t Limit( int64_t IntRule::*limit, int64_t ofFlag )
    {
        if constexpr( !isNumber )
            return 0;
        else if constexpr( requires { row.rule; } )
            return row.rule->*limit;
        else
            return ofFlag;
    }
    static constexpr int64_t lowest  = Limit( &IntRule::lowest, 0 );
    static constexpr int64_t highest = Limit( &IntRule::highest, 1 );

    static constexpr const char *Param()
    {
        if constexpr( requires { row.param; } )
            return row.param.data();
        else
            return nullptr;
    }
    static constexpr const char *Holds()
    {
        if constexpr( requires { row.rule; } )
            return OrNull( row.rule, []( auto *rule ) { return rule->words; } );
        else
            return nullptr;
    }
    static constexpr const SipsnSchemaType *Type()
    {
        if constexpr( requires { row.type; } )
            return OrNull( row.type, []( auto *type ) { return &type->shown; } );
        else
            return nullptr;
    }

    static constexpr MemberRecord Record()
    {
        MemberRecord record{
            .shown = { row.name.data(), row.kind, row.optional, lowest, highest, Param(), Holds(), Type() },
            .del   = row.optional ? Del : nullptr };
        if constexpr( isNumber ) {
            record.number       = Number;
            record.trySetNumber = TrySetNumber;
        } else {
            record.object       = Object;
            record.trySetObject = TrySetObject;
        }
        return record;
    }
};

// Rows that are plain pointers to members are not described.
template< class T, size_t n > inline constexpr bool isDescribed = requires
{
    std::get< n >( pb::membersOf< T >.rows ).name;
};

template< class T, size_t... n > consteval auto MakeMemberRecords( std::index_sequence< n... > )
{
    constexpr size_t                  count = ( size_t{ isDescribed< T, n > } + ... + 0 );
    std::array< MemberRecord, count > records{};
    [[maybe_unused]] size_t           next = 0;
    const auto                        add  = [ & ]< size_t at >( std::integral_constant< size_t, at > ) {
        if constexpr( isDescribed< T, at > ) records[ next++ ] = MemberFunctions< T, at >::Record();
    };
    ( add( std::integral_constant< size_t, n >{} ), ... );
    return records;
}
template< class T >
inline constexpr auto memberRecords = MakeMemberRecords< T >( std::make_index_sequence< pb::membersOf< T >.count >{} );

// ---- Types and families ----------------------------------------------------------------------------

// A type whose members demand something of each other says so in `IsWhole`.
template< class T > constexpr auto WholeOf() -> bool ( * )( PbObj * )
{
    if constexpr( requires( T & value ) { T::IsWhole( value ); } )
        return []( PbObj *obj ) { return T::IsWhole( *reinterpret_cast< T * >( obj ) ); };
    else
        return nullptr;
}

template< class T > constexpr TypeRecord MakeTypeRecord( const char *name, TextRecord text = {} )
{
    return { .shown   = { name, int64_t( memberRecords< T >.size() ) },
             .sort    = [] { return pb::sortOf< T >; },
             .members = memberRecords< T >.data(),
             .create  = [] { return pb::AsObj( New< T >() ); },
             .text    = text,
             .isWhole = WholeOf< T >() };
}

// Whether a form reads the text, told to a watch.
template< class Form > bool WatchForm( const Form &form, Span text, Watch &watch )
{
    WatchedCursor in{ text, { &watch } };
    return bool( pb::Ref{ form.TryDecode( in ) } );
}

} // namespace sipsn

// A type's record stands in the type's file, that of a header family's shape beside it.
#define SIPSN_DECLARE_RECORD( Type )                                                                                   \
    namespace sipsn {                                                                                                  \
    extern const TypeRecord schema##Type;                                                                              \
    }
#define SIPSN_DECLARE_SHAPE( Family )                                                                                  \
    namespace sipsn {                                                                                                  \
    extern const ShapeRecord shapeOfHeader##Family;                                                                    \
    }
