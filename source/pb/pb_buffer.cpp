// The byte buffer: one block that the bytes follow, with a start that moves when bytes are deleted from the front.
#include "pb_buffer.h"

#include "pb_internal.h"
#include "pb_text.h"

#include <algorithm>
#include <cstring>

struct PbBuffer
{
    PbObj   obj;
    int64_t start;    // how many bytes in front have been deleted
    int64_t length;   // how many bytes are held from there on
    int64_t capacity; // how many bytes the block has behind the header

    PbByte *Block() { return reinterpret_cast< PbByte * >( this + 1 ); }
    PbByte *Bytes() { return Block() + start; }

    struct Content
    {
        static void Free( PbBuffer & ) {} // nothing to release

        static int64_t   Compare( PbBuffer &a, PbBuffer &b );
        static PbString *Text( PbBuffer *buffer );
    };
};

template<> PbBuffer *pb::NewFrom( PbBuffer *source );

PB_DEFINE_TYPE( PbBuffer, pbBuffer, pb___sort_PB_BUFFER, "PB_BUFFER", pb___module, buffer, buffer,
                PbBuffer::Content::Text )

namespace {

constexpr int64_t headerSize    = sizeof( PbBuffer );
constexpr int64_t maxLength     = INT64_MAX - headerSize;
constexpr int64_t firstCapacity = 64;

PbBuffer *Create( int64_t capacity )
{
    PB_ASSERT( capacity <= maxLength );
    auto buffer = reinterpret_cast< PbBuffer * >( pb___ObjCreate( headerSize + capacity, &pb___sort_PB_BUFFER ) );

    buffer->start    = 0;
    buffer->length   = 0;
    buffer->capacity = capacity;
    return buffer;
}

void Write( PbBuffer *buffer, const PbByte *bytes, int64_t count ) // where there is room
{
    if( count > 0 ) std::memcpy( buffer->Bytes() + buffer->length, bytes, size_t( count ) );
    buffer->length += count;
}

PbBuffer *Copy( PbBuffer *source, int64_t index, int64_t count, int64_t capacity )
{
    PbBuffer *copy = Create( capacity );
    Write( copy, source->Bytes() + index, count );
    return copy;
}

// The deleted bytes in front are taken back when they fill half of the block: moving what is held, which is less, has
// then been paid for by deleting them.
bool Compacts( PbBuffer *buffer ) { return buffer->start >= buffer->capacity - buffer->start; }

void MoveToStart( PbBuffer *buffer )
{
    std::memmove( buffer->Block(), buffer->Bytes(), size_t( buffer->length ) );
    buffer->start = 0;
}

// Makes the buffer the caller's own, with room for `count` more bytes.
void Reserve( PbBuffer **slot, int64_t count )
{
    PbBuffer  *buffer = *slot;
    const bool shared = pb::IsShared( buffer );
    if( !shared && count <= buffer->capacity - buffer->start - buffer->length ) return;

    PB_ASSERT( count <= maxLength - buffer->length );
    const int64_t needed = buffer->length + count;
    if( shared ) {
        *slot = Copy( buffer, 0, buffer->length, std::max( firstCapacity, needed ) );
        pb::Release( buffer );
        return;
    }
    const bool fits = Compacts( buffer ) && needed <= buffer->capacity;
    if( buffer->start > 0 ) MoveToStart( buffer );
    if( fits ) return;

    const int64_t doubled  = buffer->capacity > maxLength / 2 ? maxLength : buffer->capacity * 2;
    const int64_t capacity = std::max( { firstCapacity, needed, doubled } );

    pb::Reallocate( *slot, headerSize + capacity, 1 );
    ( *slot )->capacity = capacity;
}

// Makes room for `count` more bytes that come from the source. Returns what to read them from: the source, or, when
// that was the buffer itself, what the buffer has become. Its bytes keep their indexes.
PbBuffer *ReserveFor( PbBuffer **slot, PbBuffer *source, int64_t count )
{
    const bool self = source == *slot;
    Reserve( slot, count );
    return self ? *slot : source;
}

void AppendRange( PbBuffer **slot, PbBuffer *source, int64_t index, int64_t count )
{
    PbBuffer *from = ReserveFor( slot, source, count );
    Write( *slot, from->Bytes() + index, count );
}

} // namespace

template<> PbBuffer *pb::NewFrom( PbBuffer *source ) { return Copy( source, 0, source->length, source->length ); }

int64_t PbBuffer::Content::Compare( PbBuffer &a, PbBuffer &b )
{
    const int order = std::memcmp( a.Bytes(), b.Bytes(), size_t( std::min( a.length, b.length ) ) );
    return order != 0 ? order : pb::Kind< int64_t >::Compare( a.length, b.length );
}

PbString *PbBuffer::Content::Text( PbBuffer *buffer )
{
    PB_ASSERT( buffer->length <= INT64_MAX / 2 );
    PbString *text = pb___StringCreateUninitialized( 2 * buffer->length );
    PbChar   *next = text->chs;
    for( int64_t i = 0; i < buffer->length; ++i ) {
        const PbByte byte = buffer->Bytes()[ i ];
        *next++           = pb::lowerDigits[ byte >> 4 ];
        *next++           = pb::lowerDigits[ byte & 15 ];
    }
    return text;
}

PbBuffer *pbBufferCreate( void ) { return Create( 0 ); }

PbBuffer *pbBufferCreateFromBytesCopy( const void *bytes, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( bytes || length == 0 );
    PbBuffer *buffer = Create( length );
    Write( buffer, static_cast< const PbByte * >( bytes ), length );
    return buffer;
}

PbBuffer *pb___BufferCreateUninitialized( int64_t length, PbByte **bytes )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( bytes );
    PbBuffer *buffer = Create( length );
    buffer->length   = length;
    *bytes           = buffer->Bytes();
    return buffer;
}

int64_t pbBufferLength( PbBuffer *buffer )
{
    PB_ASSERT( buffer );
    return buffer->length;
}

const PbByte *pbBufferBacking( PbBuffer *buffer )
{
    PB_ASSERT( buffer );
    return buffer->Bytes();
}

PbByte pbBufferByteAt( PbBuffer *buffer, int64_t index )
{
    PB_ASSERT( buffer );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( index < buffer->length );
    return buffer->Bytes()[ index ];
}

int64_t pbBufferSpace( PbBuffer *buffer )
{
    PB_ASSERT( buffer );
    return buffer->capacity - buffer->length - ( Compacts( buffer ) ? 0 : buffer->start );
}

void pbBufferAppend( PbBuffer **buffer, PbBuffer *source )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( source );
    AppendRange( buffer, source, 0, source->length );
}

void pbBufferAppendBytes( PbBuffer **buffer, const void *bytes, int64_t length )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( length >= 0 );
    PB_ASSERT( bytes || length == 0 );

    // The bytes may be the buffer's own, which making room moves.
    const uintptr_t offset =
        reinterpret_cast< uintptr_t >( bytes ) - reinterpret_cast< uintptr_t >( ( *buffer )->Bytes() );
    if( offset < static_cast< uintptr_t >( ( *buffer )->length ) ) {
        AppendRange( buffer, *buffer, static_cast< int64_t >( offset ), length );
        return;
    }
    Reserve( buffer, length );
    Write( *buffer, static_cast< const PbByte * >( bytes ), length );
}

void pbBufferAppendLeading( PbBuffer **buffer, PbBuffer *source, int64_t count )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( source );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= source->length );
    AppendRange( buffer, source, 0, count );
}

void pbBufferAppendTrailing( PbBuffer **buffer, PbBuffer *source, int64_t count )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( source );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= source->length );
    AppendRange( buffer, source, source->length - count, count );
}

void pbBufferAppendInner( PbBuffer **buffer, PbBuffer *source, int64_t index, int64_t count )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( source );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= source->length );
    PB_ASSERT( index <= source->length - count );
    AppendRange( buffer, source, index, count );
}

void pbBufferAppendOuter( PbBuffer **buffer, PbBuffer *source, int64_t index, int64_t count )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( source );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= source->length );
    PB_ASSERT( index <= source->length - count );
    const int64_t behind = source->length - count - index;
    PbBuffer     *from   = ReserveFor( buffer, source, index + behind );
    Write( *buffer, from->Bytes(), index );
    Write( *buffer, from->Bytes() + index + count, behind );
}

void pbBufferDelLeading( PbBuffer **buffer, int64_t count )
{
    PB_ASSERT_SLOT( buffer );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= ( *buffer )->length );
    const int64_t left = ( *buffer )->length - count;
    if( pb::IsShared( *buffer ) ) {
        pb::Release( std::exchange( *buffer, Copy( *buffer, count, left, left ) ) );
        return;
    }
    ( *buffer )->start  = left > 0 ? ( *buffer )->start + count : 0;
    ( *buffer )->length = left;
}

PbBuffer *pbBufferRead( PbBuffer *buffer, int64_t index, int64_t count )
{
    PB_ASSERT( buffer );
    PB_ASSERT( index >= 0 );
    PB_ASSERT( count >= 0 );
    PB_ASSERT( count <= buffer->length );
    PB_ASSERT( index <= buffer->length - count );
    return Copy( buffer, index, count, count );
}
