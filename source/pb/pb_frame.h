// The object frame: what all value types share, so that a type's own file states only its members, its accessors and
// its text form. C++ only, for the libraries that sit on pb; never installed.
//
//     struct SipsnReason                                    // 1. the members, and the table of them
//     {
//         PbObj     obj;
//         PbString *cause;
//         ...
//         static constexpr auto Members() { return pb::Members{ &SipsnReason::cause, ... }; }
//     };
//     PB_DEFINE_TYPE( ... )                                 // 2. the standard functions and the hooks
//     PbString *sipsnReasonCause( SipsnReason *reason ) { return PB_GET( reason, cause ); }   // 3. accessors
#pragma once

#include "pb_mem.h"
#include "pb_module.h"
#include "pb_obj.h"
#include "pb_string.h"

#include <atomic>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

// ---- Object memory ---------------------------------------------------------------------------------

struct PbObj
{
    PbSort  *sort;
    uint32_t count;
    uint32_t blockClass; // of its memory
};

// The records of a library lie in one section, one after another. Without the alignas the compiler may align them
// further than their size, which would leave gaps.
struct alignas( 32 ) PbSort
{
    PbObj       header;
    PbModule   *module;
    const char *name;
    void ( *free )( PbObj *obj );                     // releases the members
    int64_t ( *compare )( PbObj *objA, PbObj *objB ); // null: by address
    PbString *( *toString )( PbObj *obj );            // null: the sort's name
    void *reserved[ 2 ];
};

struct PbModule
{
    PbObj                 header;
    const PbModuleRecord *record;
    void ( *startup )();
    void *reserved;
    void ( *shutdown )();
    int64_t   starts; // how many starts have not been stopped
    PbModule *next;   // in the registry
};

// A string is one block: the characters follow the header.
struct PbString
{
    PbObj                obj;
    int64_t              length;
    int64_t              capacity;
    __extension__ PbChar chs[];

    struct Content; // pb_string.cpp
};
extern "C" PB_API PbSort pb___sort_PB_STRING;

// ---- Assertions ------------------------------------------------------------------------------------

namespace pb {

// "/any/where/source/sipsn/sipsn_reason.cpp" is reported as "source/sipsn/sipsn_reason".
template< size_t N > struct SourceName
{
    char path[ N ]{};

    constexpr SourceName( const char ( &file )[ N ] )
    {
        std::string_view name{ file, N - 1 };
        name = name.substr( 0, name.rfind( '.' ) );
        if( size_t root = name.rfind( "source/" ); root != name.npos ) name = name.substr( root );
        name.copy( path, name.size() );
    }
};
template< SourceName name > inline constexpr SourceName sourceName = name;

} // namespace pb

// The text of an abort is a contract. PB_ASSERT takes it from the condition as it is written at the call. A frame macro
// that is handed a condition must stringify it itself, with `#`, before passing it on: on the way to a second macro the
// condition's own macros would be expanded first.
#define PB_ASSERT( ... ) PB_ABORT_UNLESS( nullptr, #__VA_ARGS__, __VA_ARGS__ )
#define PB_ABORT_UNLESS( context, condition, ... )                                                                     \
    ( ( __VA_ARGS__ )                                                                                                  \
          ? static_cast< void >( 0 )                                                                                   \
          : pb___Abort( context, pb::sourceName< pb::SourceName( __FILE__ ) >.path, __LINE__, condition ) )

// ---- References and members ------------------------------------------------------------------------

namespace pb {

// The sort record of a type, in the file that defines the type: PB_DEFINE_TYPE specialises it.
template< class T > constexpr PbSort *NoSort()
{
    static_assert( sizeof( T ) == 0, "objects are created in the file that defines their type" );
    return nullptr;
}
template< class T > inline constexpr PbSort *sortOf = NoSort< T >();

template< class T > PbObj *AsObj( T *object ) { return reinterpret_cast< PbObj * >( object ); }

// From this count on, references are not counted: the object is a constant and lives as long as the process. Threads
// that use the same constants would fight for the memory of their counts. (Whoever takes so many references to another
// object makes it a constant, too.)
inline constexpr uint32_t uncounted = uint32_t( 1 ) << 31;

// An ASCII text as a string that is a constant. It is never written to, as everybody shares it.
//
//     static constexpr pb::ConstantString udp{ "udp" };
template< size_t N > struct ConstantString
{
    PbObj   obj      = { &pb___sort_PB_STRING, uncounted, 0 };
    int64_t length   = 0;
    int64_t capacity = 0;
    PbChar  chs[ N ] = {};

    consteval ConstantString( std::string_view text ) : length( int64_t( text.size() ) ), capacity( length )
    {
        for( size_t at = 0; at < text.size(); ++at ) chs[ at ] = text[ at ];
    }
    PbString *Get() const { return reinterpret_cast< PbString * >( const_cast< ConstantString * >( this ) ); }
};
template< size_t N > ConstantString( const char ( & )[ N ] ) -> ConstantString< N >;

// Makes a constant of an object that nobody else has yet.
template< class T > T *MakeConstant( T *object )
{
    AsObj( object )->count = uncounted;
    return object;
}

template< class T > T *Retain( T *object ) // null passes through
{
    if( !object ) return object;
    std::atomic_ref count( AsObj( object )->count );
    if( count.load( std::memory_order_relaxed ) < uncounted ) count.fetch_add( 1 );
    return object;
}

// Null passes through. A count of 1 is the caller's own, so nobody can change it in between and the locked decrement,
// as dear as an allocation, is left out.
template< class T > void Release( T *object )
{
    if( !object ) return;
    std::atomic_ref count( AsObj( object )->count );
    const uint32_t  before = count.load( std::memory_order_acquire );
    if( before >= uncounted ) return;
    if( before == 1 || count.fetch_sub( 1 ) == 1 ) pb___ObjFree( AsObj( object ) );
}

template< class T > bool IsShared( T *object )
{
    return std::atomic_ref( AsObj( object )->count ).load( std::memory_order_acquire ) > 1;
}

// For members of a dying object and for names of module constants. The store is volatile because nothing reads it
// before the memory is freed: as an ordinary store the compiler may drop it.
template< class T > void ReleaseAndPoison( T *&slot )
{
    Release( slot );
    *const_cast< T *volatile * >( &slot ) = reinterpret_cast< T * >( UINTPTR_MAX );
}

// Owns one reference; for locals, so that every early return releases what was built.
template< class T > class Ref
{
public:
    Ref() = default;
    explicit Ref( T *owned ) : object_( owned ) {}
    Ref( Ref &&other ) noexcept : object_( other.Detach() ) {}
    Ref &operator=( Ref &&other ) noexcept
    {
        std::swap( object_, other.object_ );
        return *this;
    }
    ~Ref() { pb::Release( object_ ); }

    explicit operator bool() const { return object_ != nullptr; }
    T       *operator->() const { return object_; }
    T       *Get() const { return object_; }
    T      **Slot() { return &object_; }                            // for the `T **` functions
    T       *Detach() { return std::exchange( object_, nullptr ); } // hands the reference to the caller

private:
    T *object_ = nullptr;
};

// The two kinds of member.
template< class M > struct Kind;

template< class T > struct Kind< T * > // a reference to an object; null when absent
{
    static constexpr T *absent = nullptr;

    static T   *Share( T *member ) { return Retain( member ); }
    static void Drop( T *member ) { Release( member ); }
    static void Free( T *&member ) { ReleaseAndPoison( member ); }

    static int64_t Compare( T *a, T *b ) // null first
    {
        if( !a || !b ) return ( a != nullptr ) - ( b != nullptr );
        return pbObjCompare( AsObj( a ), AsObj( b ) );
    }
};

template< std::integral N > struct Kind< N > // a number, -1 when absent; or a flag
{
    static constexpr N absent = std::same_as< N, bool > ? N( 0 ) : N( -1 );

    static N    Share( N member ) { return member; }
    static void Drop( N ) {}
    static void Free( N & ) {}

    static int64_t Compare( N a, N b ) { return ( a > b ) - ( a < b ); }
};

template< class M > using KindOf = Kind< std::remove_cvref_t< M > >;

template< class M > M    Share( M member ) { return Kind< M >::Share( member ); }
template< class M > bool Has( M member ) { return member != Kind< M >::absent; }
template< class M > void Set( M &member, std::type_identity_t< M > owned )
{
    Kind< M >::Drop( std::exchange( member, owned ) );
}
template< class M > void Del( M &member ) { Set( member, Kind< M >::absent ); }

// ---- Tables of members -----------------------------------------------------------------------------

// A row of a table is a pointer to the member, or something that knows more about it: it has the pointer as `member`,
// and `compared` where objects may differ in the member and still be equal.
template< class T, class M > constexpr auto MemberOf( M T::*row ) { return row; }
template< class Row > constexpr auto        MemberOf( const Row &row ) { return row.member; }

template< class Row > constexpr bool IsCompared( const Row &row )
{
    if constexpr( requires { row.compared; } )
        return row.compared;
    else
        return true;
}

// The table of a type's members, in the order in which they compare. A type that is not compared by its members has a
// `CompareOrder` of its own; one that is compared by address has `using CompareOrder = pb::ByAddress`.
template< class... Rows > struct Members
{
    std::tuple< Rows... > rows;

    constexpr explicit Members( Rows... all ) : rows{ all... } {}

    static constexpr size_t count = sizeof...( Rows );

    // Calls `visit( row )` with each row in turn, as long as it returns true; whether it always did.
    template< class Visit > [[gnu::always_inline]] constexpr bool All( Visit visit ) const
    {
        const auto visitAll = [ & ]< size_t... n >( std::index_sequence< n... > ) __attribute__( ( always_inline ) )
        {
            return ( visit( std::get< n >( rows ) ) && ... );
        };
        return visitAll( std::index_sequence_for< Rows... >{} );
    }

    template< class T > [[gnu::always_inline]] void Init( T &object ) const
    {
        All( [ & ]( const auto &row ) __attribute__( ( always_inline ) ) {
            auto &member = object.*MemberOf( row );
            member       = KindOf< decltype( member ) >::absent;
            return true;
        } );
    }
    template< class T > void Share( T &copy, T &source ) const
    {
        All( [ & ]( const auto &row ) { return copy.*MemberOf( row ) = pb::Share( source.*MemberOf( row ) ), true; } );
    }
    template< class T > [[gnu::always_inline]] void Free( T &object ) const
    {
        All( [ & ]( const auto &row ) __attribute__( ( always_inline ) ) {
            auto &member = object.*MemberOf( row );
            KindOf< decltype( member ) >::Free( member );
            return true;
        } );
    }
    template< class T > int64_t Compare( T &a, T &b ) const
    {
        int64_t order = 0;
        All( [ & ]( const auto &row ) {
            if( IsCompared( row ) )
                order = KindOf< decltype( a.*MemberOf( row ) ) >::Compare( a.*MemberOf( row ), b.*MemberOf( row ) );
            return order == 0;
        } );
        return order;
    }
};

template< class T > inline constexpr auto membersOf = T::Members();

// A type whose objects end in an array has no table: it frees and compares its `Content`.
template< class T > concept HasContent = requires { typename T::Content; };

// How many fields a struct has, to prove that its table leaves none out. (Sizes would not show it: a flag behind a flag
// hides in the padding.)
struct AnyField
{
    template< class M > operator M() const;
};
template< class T, size_t... n > consteval bool TakesFields( std::index_sequence< n... > )
{
    return requires { T{ ( static_cast< void >( n ), AnyField{} )... }; };
}
template< class T, size_t n = 1 > consteval size_t FieldCount()
{
    if constexpr( TakesFields< T >( std::make_index_sequence< n + 1 >{} ) )
        return FieldCount< T, n + 1 >();
    else
        return n;
}

template< class T > consteval bool IsTableWhole()
{
    if constexpr( HasContent< T > )
        return true;
    else if constexpr( requires { typename T::Fields; } ) // inherited from there
        return sizeof( T ) == sizeof( typename T::Fields ) &&
               FieldCount< typename T::Fields >() == 1 + membersOf< T >.count;
    else
        return FieldCount< T >() == 1 + membersOf< T >.count; // the object header is not a member
}

struct ByAddress
{
};

template< class T > concept ComparesByAddress = std::same_as< typename T::CompareOrder, ByAddress >;

// Stands in for a function that makes a type's text where the text is the name of the sort.
struct SortNameAsText
{
};
inline constexpr SortNameAsText sortNameAsText{};

template< class T > T *New()
{
    T *object = reinterpret_cast< T * >( pb___ObjCreate( sizeof( T ), sortOf< T > ) );
    membersOf< T >.Init( *object );
    return object;
}

template< class T > T *NewFrom( T *source )
{
    T *copy = reinterpret_cast< T * >( pb___ObjCreate( sizeof( T ), sortOf< T > ) );
    membersOf< T >.Share( *copy, *source );
    return copy;
}

template<> inline PbString *NewFrom( PbString *source )
{
    return pbStringCreateFromCharsCopy( source->chs, source->length );
}

template< class T > void FreeMembers( T &object )
{
    if constexpr( HasContent< T > )
        T::Content::Free( object );
    else
        membersOf< T >.Free( object );
}

template< class T > int64_t CompareObjects( T &a, T &b )
{
    if constexpr( ComparesByAddress< T > )
        return 0; // no hook is registered
    else if constexpr( requires { typename T::CompareOrder; } )
        return T::CompareOrder::Compare( a, b );
    else if constexpr( HasContent< T > )
        return T::Content::Compare( a, b );
    else
        return membersOf< T >.Compare( a, b );
}

template< class T > bool EqualObjects( T *a, T *b ) { return pbObjCompare( AsObj( a ), AsObj( b ) ) == 0; }

// Unlike an order, equality of strings can be told from the lengths, and blockwise.
template<> inline bool EqualObjects( PbString *a, PbString *b )
{
    PB_ASSERT( a );
    PB_ASSERT( b );
    return a == b || pbStringEqualsChars( a, b->chs, b->length );
}

template< class T, class Maker > PbString *MakeText( Maker maker, T *object )
{
    if constexpr( std::same_as< Maker, SortNameAsText > )
        return nullptr; // no hook is registered
    else
        return maker( object );
}

template< class T > void MakeUnique( T *&object ) // copy on write
{
    if( IsShared( object ) ) Release( std::exchange( object, NewFrom( object ) ) );
}

} // namespace pb

// ---- The standard functions ------------------------------------------------------------------------

// Defines the functions of a type (pb_types.h), plus the sort record and its hooks. `self` is the name that the type's
// conditions use for an object ("reason"), `pair` the one that comparison puts "A" and "B" to ("reasonA"); `toText`
// makes an object's wire text, or is pb::sortNameAsText. PB_DEFINE_TYPE( SipsnReason, sipsnReason,
// sipsn___sort_SIPSN_REASON, "SIPSN_REASON", sipsn___module, reason, reason, sipsn___ReasonEncode ) defines
//
//     PbSort sipsn___sort_SIPSN_REASON
//     sipsnReasonCreateFrom, ...Retain, ...Release, ...Obj, ...From, ...Sort, ...ToString, ...Compare, ...Equals
#define PB_DEFINE_TYPE( Type, prefix, sort_, sortName, module_, self, pair, toText )                                   \
    PB_DEFINE_OBJECT( Type, prefix, sort_, sortName, module_, self, pair, toText )                                     \
    Type *prefix##CreateFrom( Type *source )                                                                           \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "source", source );                                                                  \
        return pb::NewFrom( source );                                                                                  \
    }

// The same for an object that is not copied: without CreateFrom.
#define PB_DEFINE_OBJECT( Type, prefix, sort_, sortName, module_, self, pair, toText )                                 \
    static_assert( offsetof( Type, obj ) == 0, "the object header comes first" );                                      \
    static_assert( pb::IsTableWhole< Type >(), #Type ": a member is not in Members" );                                 \
                                                                                                                       \
    extern "C" PB_API PbSort sort_;                                                                                    \
                                                                                                                       \
    template<> inline constexpr PbSort *pb::sortOf< Type > = &sort_;                                                   \
                                                                                                                       \
    static void                     FreeHook( PbObj *obj ) { pb::FreeMembers( *reinterpret_cast< Type                     *>( obj ) ); }  \
    [[maybe_unused]] static int64_t CompareHook( PbObj *objA, PbObj *objB )                                            \
    {                                                                                                                  \
        Type *pair##A = prefix##From( objA );                                                                          \
        Type *pair##B = prefix##From( objB );                                                                          \
        PB_ABORT_UNLESS( nullptr, #pair "A", pair##A );                                                                \
        PB_ABORT_UNLESS( nullptr, #pair "B", pair##B );                                                                \
        return pb::CompareObjects( *pair##A, *pair##B );                                                               \
    }                                                                                                                  \
    [[maybe_unused]] static PbString *ToStringHook( PbObj *obj )                                                       \
    {                                                                                                                  \
        return pb::MakeText( toText, prefix##From( obj ) );                                                            \
    }                                                                                                                  \
                                                                                                                       \
    [[gnu::section( "pb_sorts" )]] PbSort sort_ = {                                                                    \
        .header  = {},                                                                                                 \
        .module  = &module_,                                                                                           \
        .name    = sortName,                                                                                           \
        .free    = FreeHook,                                                                                           \
        .compare = pb::ComparesByAddress< Type > ? nullptr : CompareHook,                                              \
        .toString =                                                                                                    \
            std::same_as< std::remove_cvref_t< decltype( toText ) >, pb::SortNameAsText > ? nullptr : ToStringHook,    \
        .reserved = {} };                                                                                              \
                                                                                                                       \
    Type *prefix##Retain( Type *obj )                                                                                  \
    {                                                                                                                  \
        PB_ABORT_UNLESS( "stdfunc retain", "obj", obj );                                                               \
        return pb::Retain( obj );                                                                                      \
    }                                                                                                                  \
    void prefix##Release( Type *obj )                                                                                  \
    {                                                                                                                  \
        PB_ABORT_UNLESS( "stdfunc release", "obj", obj );                                                              \
        pb::Release( obj );                                                                                            \
    }                                                                                                                  \
    PbObj *prefix##Obj( Type *obj ) { return pb::AsObj( obj ); }                                                       \
    Type  *prefix##From( PbObj *obj )                                                                                  \
    {                                                                                                                  \
        PB_ABORT_UNLESS( "stdfunc from", "!obj || pbObjSort(obj)==&" #sort_, !obj || obj->sort == &sort_ );            \
        return reinterpret_cast< Type * >( obj );                                                                      \
    }                                                                                                                  \
    PbSort   *prefix##Sort( void ) { return &sort_; }                                                                  \
    PbString *prefix##ToString( Type *obj )                                                                            \
    {                                                                                                                  \
        PB_ABORT_UNLESS( "stdfunc tostring", "obj", obj );                                                             \
        return pbObjToString( pb::AsObj( obj ) );                                                                      \
    }                                                                                                                  \
    int64_t prefix##Compare( Type *a, Type *b )                                                                        \
    {                                                                                                                  \
        PB_ABORT_UNLESS( "stdfunc compare a", "objA", a );                                                             \
        PB_ABORT_UNLESS( "stdfunc compare b", "objB", b );                                                             \
        return pbObjCompare( pb::AsObj( a ), pb::AsObj( b ) );                                                         \
    }                                                                                                                  \
    bool prefix##Equals( Type *a, Type *b ) { return pb::EqualObjects( a, b ); }

// ---- Accessor bodies -------------------------------------------------------------------------------

// One per accessor, as the whole of its body: `return PB_GET( reason, cause );`, `PB_DEL( reason, cause );`. `self` is
// the function's first parameter. In PB_SET, `check` is the condition on the new value and `stored` the reference or
// number that goes into the member; PB_PUT is for what needs no check: flags, and what a normaliser has checked.
#define PB_GET( self, member ) ( PB_ABORT_UNLESS( nullptr, #self, self ), pb::Share( self->member ) )
#define PB_HAS( self, member ) ( PB_ABORT_UNLESS( nullptr, #self, self ), pb::Has( self->member ) )
#define PB_DEL( self, member ) ( PB_ASSERT_SLOT( self ), PB_UNSHARE( self ), pb::Del( ( *self )->member ) )
#define PB_PUT( self, member, stored )                                                                                 \
    ( PB_ASSERT_SLOT( self ), PB_UNSHARE( self ), pb::Set( ( *self )->member, stored ) )
#define PB_SET( self, member, check, stored )                                                                          \
    do {                                                                                                               \
        PB_ASSERT_SLOT( self );                                                                                        \
        PB_ABORT_UNLESS( nullptr, #check, check );                                                                     \
        PB_UNSHARE( self );                                                                                            \
        pb::Set( ( *self )->member, stored );                                                                          \
    } while( false )

// The two steps every changing function starts with; `self` is its `T **`.
#define PB_ASSERT_SLOT( self ) ( PB_ABORT_UNLESS( nullptr, #self, self ), PB_ABORT_UNLESS( nullptr, "*" #self, *self ) )
#define PB_UNSHARE( self )     ( PB_ABORT_UNLESS( nullptr, "((*" #self "))", *self ), pb::MakeUnique( *self ) )
