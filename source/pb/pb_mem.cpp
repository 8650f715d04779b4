// Memory from the C library, with exhaustion turned into an abort.
#include "pb_mem.h"

#include "pb_frame.h"

#include <cstdlib>

namespace {

// At least one: for none the C library may answer null, and free a block that was to be resized.
size_t ByteCount( int64_t count, int64_t size )
{
    PB_ASSERT( count >= 0 );
    PB_ASSERT( size >= 0 );
    int64_t    bytes;
    const bool representable = !__builtin_mul_overflow( count, size, &bytes );
    PB_ASSERT( representable );
    return bytes ? static_cast< size_t >( bytes ) : 1;
}

} // namespace

void *pbMemAllocN( int64_t count, int64_t size )
{
    void *memory = std::malloc( ByteCount( count, size ) );
    PB_ASSERT( memory );
    return memory;
}

void *pbMemReallocN( void *memory, int64_t count, int64_t size )
{
    memory = std::realloc( memory, ByteCount( count, size ) );
    PB_ASSERT( memory );
    return memory;
}

void pbMemFree( void *memory ) { std::free( memory ); }
