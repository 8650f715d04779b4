// The vector of objects: one block that the elements follow, grown by doubling, with free room at either end.
#include "pb_vector.h"

#include "pb_internal.h"

#include <algorithm>
#include <cstring>

// Nearly every vector has its elements from the first place on. One that has free places before them tells by the sign
// of `capacity`, and how many by the first of these places, so that it costs the others neither memory nor time.
struct PbVector
{
    PbObj   obj;
    int64_t length;
    int64_t capacity; // its complement where the first place is free

    PbObj **Places() { return reinterpret_cast< PbObj ** >( this + 1 ); }
    bool    HasFront() const { return capacity < 0; }
    int64_t Front() { return HasFront() ? reinterpret_cast< intptr_t >( Places()[ 0 ] ) : 0; }
    int64_t Capacity() const { return HasFront() ? ~capacity : capacity; }
    PbObj **Items() { return Places() + Front(); }

    // Says where the elements are now.
    void SetFront( int64_t front )
    {
        capacity = front > 0 ? ~Capacity() : Capacity();
        if( front > 0 ) Places()[ 0 ] = reinterpret_cast< PbObj * >( intptr_t( front ) );
    }

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
    PbVector *copy  = Create( capacity );
    PbObj   **items = source->Items();
    for( int64_t i = 0; i < source->length; ++i ) copy->Places()[ i ] = pb::Retain( items[ i ] );
    copy->length = source->length;
    return copy;
}

void Move( PbObj **to, PbObj **from, int64_t count )
{
    if( count > 0 ) std::memmove( to, from, size_t( count * itemSize ) );
}

// Moves all elements so that `front` places before them are free.
void MoveItems( PbVector *vector, int64_t front )
{
    Move( vector->Places() + front, vector->Items(), vector->length );
    vector->SetFront( front );
}

enum class End
{
    Front,
    Back
};

// In so short a vector it is the end behind the place that moves, so that it has no free places at the front.
constexpr int64_t shortLength = 32;

// The end whose elements move when one of them comes or goes: that with fewer, of so many before and behind.
End EndToMove( int64_t before, int64_t behind )
{
    return before < behind && before + behind > shortLength ? End::Front : End::Back;
}

int64_t Room( PbVector *vector, End end )
{
    const int64_t front = vector->Front();
    return end == End::Front ? front : vector->Capacity() - vector->length - front;
}

int64_t Doubled( int64_t capacity ) { return std::max( firstCapacity, capacity + capacity ); }

void Grow( PbVector **slot, End end )
{
    const int64_t capacity = ( *slot )->Capacity();
    const int64_t grown    = Doubled( capacity );
    const int64_t front    = ( *slot )->Front();
    pb::Reallocate( *slot, headerItems + grown, itemSize );
    ( *slot )->capacity = front > 0 ? ~grown : grown;
    if( end == End::Front ) MoveItems( *slot, front + grown - capacity );
}

// Makes room for one more element at an end that has none, in a vector of the caller's own. What room there is at the
// other end is halved, unless it is so little that a long vector would soon be moved again.
void MakeRoom( PbVector **slot, End end )
{
    const int64_t length = ( *slot )->length;
    const int64_t room   = ( *slot )->Capacity() - length;
    if( room == 0 || ( length > shortLength && room < length / 2 ) ) return Grow( slot, end );
    MoveItems( *slot, end == End::Front ? room - room / 2 : room / 2 );
}

void InsertOwned( PbVector **slot, int64_t index, PbObj *owned )
{
    if( pb::IsShared( *slot ) ) {
        PbVector     *shared   = *slot;
        const int64_t capacity = shared->Capacity();
        *slot                  = Copy( shared, shared->length < capacity ? capacity : Doubled( capacity ) );
        pb::Release( shared );
    }
    const End end = EndToMove( index, ( *slot )->length - index );
    if( Room( *slot, end ) == 0 ) MakeRoom( slot, end );

    PbVector *vector = *slot;
    PbObj   **items  = vector->Items();
    if( end == End::Front ) {
        const int64_t front = vector->Front() - 1;
        Move( items - 1, items, index );
        vector->SetFront( front );
        items[ index - 1 ] = owned;
    } else {
        Move( items + index + 1, items + index, vector->length - index );
        items[ index ] = owned;
    }
    ++vector->length;
}

void AppendOwned( PbVector **slot, PbObj *owned )
{
    PbVector *vector = *slot;
    if( vector->length < vector->capacity && !pb::IsShared( vector ) ) [[likely]]
        vector->Places()[ vector->length++ ] = owned;
    else
        InsertOwned( slot, vector->length, owned );
}

} // namespace

template<> PbVector *pb::NewFrom( PbVector *source ) { return Copy( source, source->length ); }

void PbVector::Content::Free( PbVector &vector )
{
    PbObj **items = vector.Items();
    for( int64_t i = 0; i < vector.length; ++i ) pb::ReleaseAndPoison( items[ i ] );
}

int64_t PbVector::Content::Compare( PbVector &a, PbVector &b )
{
    const int64_t common = std::min( a.length, b.length );
    PbObj       **itemsA = a.Items(), **itemsB = b.Items();
    for( int64_t i = 0; i < common; ++i ) {
        PbObj *itemA = itemsA[ i ];
        PbObj *itemB = itemsB[ i ];
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

// Kept out of line, so that what nearly every call does needs no frame.
[[gnu::noinline]] static PbObj *PeekWithChecks( PbVector *vector, int64_t index )
{
    PB_ASSERT( vector );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < vector->length );
    return vector->Items()[ index ];
}

PbObj *pb___VectorPeek( PbVector *vector, int64_t index )
{
    if( vector && uint64_t( index ) < uint64_t( vector->length ) && !vector->HasFront() ) [[likely]]
        return vector->Places()[ index ];
    return PeekWithChecks( vector, index );
}

PbObj *const *pb___VectorPeekAll( PbVector *vector )
{
    PB_ASSERT( vector );
    return vector->Items();
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
    AppendOwned( vector, owned );
}

// An object is retained before the vector is made unique: it may be the vector itself.
void pbVectorAppend( PbVector **vector, PbObj *obj )
{
    PB_ASSERT_SLOT( vector );
    PB_ASSERT( obj );
    AppendOwned( vector, pb::Retain( obj ) );
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
    PbObj       **items   = ( *vector )->Items();
    PbObj        *removed = items[ index ];
    const int64_t behind  = --( *vector )->length - index;
    if( EndToMove( index, behind ) == End::Front ) {
        const int64_t front = ( *vector )->Front() + 1;
        Move( items + 1, items, index );
        ( *vector )->SetFront( front );
    } else {
        Move( items + index, items + index + 1, behind );
    }
    if( ( *vector )->length == 0 ) ( *vector )->SetFront( 0 );
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
    ( *vector )->SetFront( 0 );
}
