// The dictionary: a sorted array that follows the header in its block, or, when it is large, a balanced tree.
#include "pb_dict.h"

#include "pb_dict_tree.h"
#include "pb_internal.h"

#include <algorithm>
#include <cstring>

struct PbDict
{
    PbObj         obj;
    int64_t       length;
    int64_t       capacity; // entries that the array has room for
    pb::DictNode *tree;     // null: the entries are in the array

    pb::DictEntry *Array() { return reinterpret_cast< pb::DictEntry * >( this + 1 ); }
    pb::DictEntry *At( int64_t index ) { return tree ? pb::TreeEntryAt( tree, index ) : Array() + index; }

    struct Content
    {
        static void      Free( PbDict &dict );
        static int64_t   Compare( PbDict &a, PbDict &b );
        static PbString *Text( PbDict *dict );
    };
};

template<> PbDict *pb::NewFrom( PbDict *source );

PB_DEFINE_TYPE( PbDict, pbDict, pb___sort_PB_DICT, "PB_DICT", pb___module, dict, dict, PbDict::Content::Text )

namespace {

constexpr int64_t firstCapacity = 4;
constexpr int64_t maxArray      = 64; // one more, and the entries move to a tree
constexpr int64_t minTree       = 32; // one fewer, and they move back

constexpr int64_t BlockSize( int64_t capacity )
{
    return static_cast< int64_t >( sizeof( PbDict ) ) + capacity * static_cast< int64_t >( sizeof( pb::DictEntry ) );
}

PbDict *Create( int64_t capacity )
{
    auto dict = reinterpret_cast< PbDict * >( pb___ObjCreate( BlockSize( capacity ), &pb___sort_PB_DICT ) );

    dict->length   = 0;
    dict->capacity = capacity;
    dict->tree     = nullptr;
    return dict;
}

void Resize( PbDict **slot, int64_t capacity )
{
    pb::Reallocate( *slot, BlockSize( capacity ), 1 );
    ( *slot )->capacity = capacity;
}

// Where in the array the key stands, or would stand.
struct Place
{
    int64_t index;
    bool    found;
};

Place FindInArray( PbDict *dict, const PbString *key )
{
    const pb::DictEntry *entries = dict->Array();
    int64_t              first   = 0;
    int64_t              last    = dict->length;
    while( first < last ) {
        const int64_t middle = ( first + last ) / 2;
        const int     order  = pb::CompareKeys( key, entries[ middle ].key );
        if( order == 0 ) return { middle, true };
        if( order < 0 )
            last = middle;
        else
            first = middle + 1;
    }
    return { first, false };
}

pb::DictEntry *Find( PbDict *dict, const PbString *key )
{
    if( dict->tree ) return pb::FindInTree( dict->tree, key );
    const Place place = FindInArray( dict, key );
    return place.found ? dict->Array() + place.index : nullptr;
}

void MoveToTree( PbDict **slot )
{
    ( *slot )->tree = pb::BuildTree( ( *slot )->Array(), ( *slot )->length );
    Resize( slot, 0 );
}

void MoveToArray( PbDict **slot )
{
    Resize( slot, maxArray );
    PbDict *dict = *slot;
    for( int64_t i = 0; i < dict->length; ++i ) dict->Array()[ i ] = *pb::TreeEntryAt( dict->tree, i );
    pb::FreeNodes( std::exchange( dict->tree, nullptr ) );
}

// Entries often come in the order of their keys, or are few.
Place FindForSet( PbDict *dict, const PbString *key )
{
    constexpr int64_t maxTries = 4;

    const pb::DictEntry *entries = dict->Array();
    const int64_t        length  = dict->length;
    for( int64_t index = length; index > std::max( length - maxTries, int64_t{ 0 } ); --index ) {
        const int order = pb::CompareKeys( key, entries[ index - 1 ].key );
        if( order > 0 ) return { index, false };
        if( order == 0 ) return { index - 1, true };
    }
    return length > maxTries ? FindInArray( dict, key ) : Place{ 0, false };
}

void SetInArray( PbDict **slot, pb::DictEntry owned )
{
    const Place place = FindForSet( *slot, owned.key );
    if( place.found ) {
        pb::Replace( ( *slot )->Array()[ place.index ], owned );
        return;
    }
    if( ( *slot )->length == ( *slot )->capacity )
        Resize( slot, std::max( firstCapacity, std::min( maxArray, 2 * ( *slot )->capacity ) ) );
    pb::DictEntry *entry = ( *slot )->Array() + place.index;
    if( const int64_t behind = ( *slot )->length - place.index; behind > 0 )
        std::memmove( entry + 1, entry, size_t( behind ) * sizeof( *entry ) );
    *entry = owned;
    ++( *slot )->length;
}

void SetOwned( PbDict **slot, pb::DictEntry owned ) // in a dictionary that is the caller's own
{
    if( !( *slot )->tree && ( *slot )->length == maxArray && !Find( *slot, owned.key ) ) MoveToTree( slot );
    if( !( *slot )->tree ) {
        SetInArray( slot, owned );
        return;
    }
    pb::SetInTree( ( *slot )->tree, owned );
    ( *slot )->length = ( *slot )->tree->size;
}

bool Remove( PbDict **slot, const PbString *key, pb::DictEntry &removed )
{
    PbDict *dict = *slot;
    if( dict->tree ) {
        if( !pb::RemoveFromTree( dict->tree, key, removed ) ) return false;
        if( --dict->length < minTree ) MoveToArray( slot );
        return true;
    }
    const Place place = FindInArray( dict, key );
    if( !place.found ) return false;
    pb::DictEntry *entry = dict->Array() + place.index;
    removed              = *entry;
    --dict->length;
    std::memmove( entry, entry + 1, size_t( dict->length - place.index ) * sizeof( *entry ) );
    return true;
}

} // namespace

template<> PbDict *pb::NewFrom( PbDict *source )
{
    PbDict *copy = Create( source->capacity );
    copy->tree   = pb::CopyTree( source->tree );
    copy->length = source->length;
    if( !copy->tree )
        for( int64_t i = 0; i < source->length; ++i ) {
            const pb::DictEntry &entry = source->Array()[ i ];
            copy->Array()[ i ]         = { pb::Retain( entry.key ), pb::Retain( entry.value ) };
        }
    return copy;
}

void PbDict::Content::Free( PbDict &dict )
{
    if( dict.tree )
        pb::FreeTree( std::exchange( dict.tree, nullptr ) );
    else
        for( int64_t i = 0; i < dict.length; ++i ) pb::Drop( dict.Array()[ i ] );
    dict.length = 0;
}

int64_t PbDict::Content::Compare( PbDict &a, PbDict &b )
{
    const int64_t common = std::min( a.length, b.length );
    for( int64_t i = 0; i < common; ++i ) {
        const pb::DictEntry &entryA = *a.At( i );
        const pb::DictEntry &entryB = *b.At( i );
        if( const int order = pb::CompareKeys( entryA.key, entryB.key ) ) return order;
        if( entryA.value == entryB.value ) continue;
        if( const int64_t order = pbObjCompare( entryA.value, entryB.value ) ) return order;
    }
    return pb::Kind< int64_t >::Compare( a.length, b.length );
}

PbString *PbDict::Content::Text( PbDict *dict )
{
    pb::Ref text{ pbStringCreate() };
    for( int64_t i = 0; i < dict->length; ++i ) {
        const pb::DictEntry &entry = *dict->At( i );
        if( i > 0 ) pbStringAppendCstr( text.Slot(), ", ", 2 );
        pbStringAppend( text.Slot(), entry.key );
        pbStringAppendCstr( text.Slot(), ": ", 2 );
        const pb::Ref value{ pbObjToString( entry.value ) };
        pbStringAppend( text.Slot(), value.Get() );
    }
    return text.Detach();
}

PbDict *pbDictCreate( void ) { return Create( firstCapacity ); }

PbDict *pb___DictCreateWithCapacity( int64_t capacity )
{
    PB_ASSERT( capacity >= 0 );
    return Create( std::min( capacity, maxArray ) );
}

int64_t pbDictLength( PbDict *dict )
{
    PB_ASSERT( dict );
    return dict->length;
}

PbObj *pb___DictPeek( PbDict *dict, PbString *key )
{
    PB_ASSERT( dict );
    PB_ASSERT( key );
    // Names are mostly shared strings, and then found without being read.
    if( !dict->tree )
        for( pb::DictEntry *entry = dict->Array(), *end = entry + dict->length; entry != end; ++entry )
            if( entry->key == key ) return entry->value;
    const pb::DictEntry *entry = Find( dict, key );
    return entry ? entry->value : nullptr;
}

bool   pbDictHasStringKey( PbDict *dict, PbString *key ) { return pb___DictPeek( dict, key ) != nullptr; }
PbObj *pbDictStringKey( PbDict *dict, PbString *key ) { return pb::Retain( pb___DictPeek( dict, key ) ); }

PbString *pb___DictPeekKeyAt( PbDict *dict, int64_t index )
{
    PB_ASSERT( dict );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < dict->length );
    return dict->At( index )->key;
}

PbObj *pb___DictPeekValueAt( PbDict *dict, int64_t index )
{
    PB_ASSERT( dict );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < dict->length );
    return dict->At( index )->value;
}

void pb___DictVisitValues( PbDict *dict, void ( *visit )( void *context, PbObj *value ), void *context )
{
    PB_ASSERT( dict );
    PB_ASSERT( visit );
    if( dict->tree )
        pb::VisitTree( dict->tree, visit, context );
    else
        for( int64_t i = 0; i < dict->length; ++i ) visit( context, dict->Array()[ i ].value );
}

PbString *pbDictKeyAt( PbDict *dict, int64_t index ) { return pb::Retain( pb___DictPeekKeyAt( dict, index ) ); }
PbObj    *pbDictValueAt( PbDict *dict, int64_t index ) { return pb::Retain( pb___DictPeekValueAt( dict, index ) ); }

PbVector *pbDictKeysVector( PbDict *dict )
{
    PB_ASSERT( dict );
    PbVector *keys = pb___VectorCreateWithCapacity( dict->length );
    for( int64_t i = 0; i < dict->length; ++i )
        pb___VectorAppendOwned( &keys, pb::AsObj( pb::Retain( dict->At( i )->key ) ) );
    return keys;
}

PbVector *pbDictValuesVector( PbDict *dict )
{
    PB_ASSERT( dict );
    PbVector *values = pb___VectorCreateWithCapacity( dict->length );
    for( int64_t i = 0; i < dict->length; ++i ) pb___VectorAppendOwned( &values, pb::Retain( dict->At( i )->value ) );
    return values;
}

PbObj **pb___DictSlot( PbDict **dict, PbString *key )
{
    PB_ASSERT_SLOT( dict );
    PB_ASSERT( key );
    PB_UNSHARE( dict );
    pb::DictEntry *entry = Find( *dict, key );
    return entry ? &entry->value : nullptr;
}

void pb___DictSetOwned( PbDict **dict, PbString *key, PbObj *value )
{
    PB_ASSERT_SLOT( dict );
    PB_ASSERT( key );
    PB_ASSERT( value );
    PB_UNSHARE( dict );
    SetOwned( dict, { key, value } );
}

void pb___DictAppendOwned( PbDict **dict, PbString *key, PbObj *value )
{
    PB_ASSERT_SLOT( dict );
    PbDict *at = *dict;
    if( at->tree || at->length == at->capacity || pb::IsShared( at ) ) return pb___DictSetOwned( dict, key, value );
    at->Array()[ at->length++ ] = { key, value };
}

// The value is retained before the dictionary is made unique: it may be the dictionary itself.
void pbDictSetStringKey( PbDict **dict, PbString *key, PbObj *value )
{
    PB_ASSERT_SLOT( dict );
    PB_ASSERT( key );
    PB_ASSERT( value );
    pb___DictSetOwned( dict, pb::Retain( key ), pb::Retain( value ) );
}

void pbDictDelStringKey( PbDict **dict, PbString *key )
{
    PB_ASSERT_SLOT( dict );
    PB_ASSERT( key );
    if( pb::IsShared( *dict ) && !Find( *dict, key ) ) return; // nothing to copy it for
    PB_UNSHARE( dict );
    if( pb::DictEntry removed; Remove( dict, key, removed ) ) {
        pb::Release( removed.key );
        pb::Release( removed.value );
    }
}

void pbDictClear( PbDict **dict )
{
    PB_ASSERT_SLOT( dict );
    if( pb::IsShared( *dict ) )
        pb::Release( std::exchange( *dict, pbDictCreate() ) );
    else
        PbDict::Content::Free( **dict );
}
