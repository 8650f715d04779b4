// Stands in for the C library's allocator, for every library of the process, to count the calls. Memory is still the C
// library's own, so its free does for it.
#include "allocations.h"

#include <atomic>
#include <cstddef>

extern "C" {
void *__libc_malloc( size_t size );
void *__libc_calloc( size_t count, size_t size );
void *__libc_realloc( void *memory, size_t size );
}

namespace {

std::atomic< int64_t > allocations;

// Benchmarks run on one thread: nothing is lost, and no locked instruction is timed.
void Count() { allocations.store( allocations.load( std::memory_order_relaxed ) + 1, std::memory_order_relaxed ); }

} // namespace

int64_t CountAllocations() { return allocations.load( std::memory_order_relaxed ); }

extern "C" void *malloc( size_t size )
{
    Count();
    return __libc_malloc( size );
}

extern "C" void *calloc( size_t count, size_t size )
{
    Count();
    return __libc_calloc( count, size );
}

extern "C" void *realloc( void *memory, size_t size )
{
    Count();
    return __libc_realloc( memory, size );
}
