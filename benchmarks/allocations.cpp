// Stands in for the C library's allocator, for every library of the process, to count the calls. Memory is still the C
// library's own.
#include "allocations.h"

#include <atomic>
#include <cstddef>

extern "C" {
void *__libc_malloc( size_t size );
void *__libc_calloc( size_t count, size_t size );
void *__libc_realloc( void *memory, size_t size );
void  __libc_free( void *memory );
}

namespace {

std::atomic< int64_t > allocations, blocks;

// Benchmarks run on one thread: nothing is lost, and no locked instruction is timed.
void Add( std::atomic< int64_t > &count, int64_t more )
{
    count.store( count.load( std::memory_order_relaxed ) + more, std::memory_order_relaxed );
}

} // namespace

int64_t CountAllocations() { return allocations.load( std::memory_order_relaxed ); }

int64_t CountBlocks() { return blocks.load( std::memory_order_relaxed ); }

extern "C" void *malloc( size_t size )
{
    Add( allocations, 1 );
    Add( blocks, 1 );
    return __libc_malloc( size );
}

extern "C" void *calloc( size_t count, size_t size )
{
    Add( allocations, 1 );
    Add( blocks, 1 );
    return __libc_calloc( count, size );
}

extern "C" void *realloc( void *memory, size_t size )
{
    Add( allocations, 1 );
    if( !memory ) Add( blocks, 1 );
    return __libc_realloc( memory, size );
}

extern "C" void free( void *memory )
{
    if( memory ) Add( blocks, -1 );
    __libc_free( memory );
}
