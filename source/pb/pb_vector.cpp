// The vector of objects: one block that the elements follow, grown by doubling.
#include "pb_vector.h"

#include "pb_internal.h"

#include <algorithm>
#include <cstring>

struct PbVector
{
    PbObj   obj;
    int64_t length;
    int64_t capacity;

    PbObj **Items() { return reinterpret_cast< PbObj ** >( this + 1 ); }

    struct Content
    {
        static void      Free( PbVector &vector );
        static int64_t   Compare( PbVector &a, PbVector &b );
        static PbString *Text( PbVector *vector );
    };
};

template<> PbVector *pb::NewFrom( PbVector *source );

PB_DEFINE_TYPE( PbVector, pbVector, pb___sort_PB_VECTOR, "PB_VECTOR", pb___module, vector, vector,
                PbVector::Content::Text )

namespace {

constexpr int64_t itemSize = sizeof( PbObj * );

constexpr int64_t headerItems   = sizeof( PbVector ) / itemSize; // the header, counted in items
constexpr int64_t firstCapacity = 4;

PbVector *Create( int64_t capacity )
{
    PB_ASSERT( capacity <= INT64_MAX / itemSize - headerItems );
    const int64_t size = ( headerItems + capacity ) * itemSize;

    auto vector = reinterpret_cast< PbVector * >( pb___ObjCreate( size, &pb___sort_PB_VECTOR ) );

    vector->length   = 0;
    vector->capacity = capacity;
    return vector;
}

PbVector *Copy( PbVector *source, int64_t capacity )
{
    PbVector *copy = Create( capacity );
    for( int64_t i = 0; i < source->length; ++i ) copy->Items()[ i ] = pb::Retain( source->Items()[ i ] );
    copy->length = source->length;
    return copy;
}

// Makes the vector the caller's own, with room for one more element.
void Reserve( PbVector **slot )
{
    PbVector     *vector = *slot;
    const int64_t grown  = vector->length < vector->capacity
                               ? vector->capacity
                               : std::max( firstCapacity, vector->capacity + vector->capacity );
    if( pb::IsShared( vector ) ) {
        *slot = Copy( vector, grown );
        pb::Release( vector );
    } else if( grown > vector->capacity ) {
        pb::Reallocate( *slot, headerItems + grown, itemSize );
        ( *slot )->capacity = grown;
    }
}

void InsertOwned( PbVector **slot, int64_t index, PbObj *owned )
{
    Reserve( slot );
    PbVector *vector = *slot;
    PbObj   **place  = vector->Items() + index;
    if( const int64_t behind = vector->length - index; behind > 0 )
        std::memmove( place + 1, place, size_t( behind * itemSize ) );
    *place = owned;
    ++vector->length;
}

} // namespace

template<> PbVector *pb::NewFrom( PbVector *source ) { return Copy( source, source->length ); }

void PbVector::Content::Free( PbVector &vector )
{
    for( int64_t i = 0; i < vector.length; ++i ) pb::ReleaseAndPoison( vector.Items()[ i ] );
}

int64_t PbVector::Content::Compare( PbVector &a, PbVector &b )
{
    const int64_t common = std::min( a.length, b.length );
    for( int64_t i = 0; i < common; ++i ) {
        PbObj *itemA = a.Items()[ i ];
        PbObj *itemB = b.Items()[ i ];
        if( itemA == itemB ) continue;
        if( const int64_t order = pbObjCompare( itemA, itemB ) ) return order;
    }
    return pb::Kind< int64_t >::Compare( a.length, b.length );
}

PbString *PbVector::Content::Text( PbVector *vector )
{
    pb::Ref text{ pbStringCreate() };
    for( int64_t i = 0; i < vector->length; ++i ) {
        if( i > 0 ) pbStringAppendCstr( text.Slot(), ", ", 2 );
        const pb::Ref item{ pbObjToString( vector->Items()[ i ] ) };
        pbStringAppend( text.Slot(), item.Get() );
    }
    return text.Detach();
}

PbVector *pbVectorCreate( void ) { return Create( firstCapacity ); }

PbVector *pb___VectorCreateWithCapacity( int64_t capacity )
{
    PB_ASSERT( capacity >= 0 );
    return Create( capacity );
}

int64_t pbVectorLength( PbVector *vector )
{
    PB_ASSERT( vector );
    return vector->length;
}

PbObj *pb___VectorPeek( PbVector *vector, int64_t index )
{
    PB_ASSERT( vector );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < vector->length );
    return vector->Items()[ index ];
}

PbObj *pbVectorAt( PbVector *vector, int64_t index ) { return pb::Retain( pb___VectorPeek( vector, index ) ); }

PbString *pbVectorStringAt( PbVector *vector, int64_t index )
{
    return pb::Retain( pbStringFrom( pb___VectorPeek( vector, index ) ) );
}

bool pbVectorContainsOnly( PbVector *vector, PbSort *sort )
{
    PB_ASSERT( vector );
    PB_ASSERT( sort );
    PbObj **items = vector->Items();
    return std::all_of( items, items + vector->length, [ & ]( PbObj *item ) { return item->sort == sort; } );
}

void pb___VectorAppendOwned( PbVector **vector, PbObj *owned )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( owned );
    InsertOwned( vector, ( *vector )->length, owned );
}

// An object is retained before the vector is made unique: it may be the vector itself.
void pbVectorAppend( PbVector **vector, PbObj *obj )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( obj );
    InsertOwned( vector, ( *vector )->length, pb::Retain( obj ) );
}

void pbVectorPrepend( PbVector **vector, PbObj *obj )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( obj );
    InsertOwned( vector, 0, pb::Retain( obj ) );
}

void pbVectorInsert( PbVector **vector, int64_t index, PbObj *obj )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index <= ( *vector )->length );
    PB_ASSERT( obj );
    InsertOwned( vector, index, pb::Retain( obj ) );
}

void pbVectorSetAt( PbVector **vector, int64_t index, PbObj *obj )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < ( *vector )->length );
    PB_ASSERT( obj );
    pb::Ref owned{ pb::Retain( obj ) };
    PB_UNSHARE( vector );
    pb::Set( ( *vector )->Items()[ index ], owned.Detach() );
}

void pbVectorAppendString( PbVector **vector, PbString *string )
{
    PB_ASSERT( string );
    pbVectorAppend( vector, pb::AsObj( string ) );
}

void pbVectorPrependString( PbVector **vector, PbString *string )
{
    PB_ASSERT( string );
    pbVectorPrepend( vector, pb::AsObj( string ) );
}

void pbVectorInsertString( PbVector **vector, int64_t index, PbString *string )
{
    PB_ASSERT( string );
    pbVectorInsert( vector, index, pb::AsObj( string ) );
}

void pbVectorSetStringAt( PbVector **vector, int64_t index, PbString *string )
{
    PB_ASSERT( string );
    pbVectorSetAt( vector, index, pb::AsObj( string ) );
}

void pbVectorDelAt( PbVector **vector, int64_t index )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < ( *vector )->length );
    PB_UNSHARE( vector );
    PbObj **place   = ( *vector )->Items() + index;
    PbObj  *removed = *place;
    --( *vector )->length;
    std::memmove( place, place + 1, size_t( ( ( *vector )->length - index ) * itemSize ) );
    pb::Release( removed );
}

void pbVectorClear( PbVector **vector )
{
    PB_ASSERT_SLOT( vector );
    if( pb::IsShared( *vector ) ) {
        pb::Release( std::exchange( *vector, pbVectorCreate() ) );
        return;
    }
    PbVector::Content::Free( **vector );
    ( *vector )->length = 0;
}
