// The memory of objects: small blocks that are kept for the next object of their size. C++ only; never installed.
//
// A message is a hundred small objects that come and go together, more of one size than the C library keeps at hand, so
// each thread keeps the blocks that it freed in lists by size. What it keeps is bounded, and goes back to the C library
// when the thread ends. Under a sanitizer every block is the C library's, so that misuse is seen.
#pragma once

#include "pb_frame.h"

#if defined( __SANITIZE_ADDRESS__ ) || defined( __SANITIZE_THREAD__ )
#define PB_KEEP_BLOCKS 0
#elif defined( __has_feature )
#if __has_feature( address_sanitizer ) || __has_feature( thread_sanitizer ) || __has_feature( memory_sanitizer )
#define PB_KEEP_BLOCKS 0
#endif
#endif
#ifndef PB_KEEP_BLOCKS
#define PB_KEEP_BLOCKS 1
#endif

namespace pb {

inline constexpr size_t   blockGranule    = 32; // blocks of one class differ by less than this
inline constexpr uint32_t blockClassCount = 16; // the largest has 512 bytes
inline constexpr uint32_t maxKeptPerClass = 128;

// The class of blocks of that size, from 1 on; above the last, blocks are the C library's, and of class 0.
inline constexpr size_t BlockClass( int64_t size ) { return ( size_t( size ) + blockGranule - 1 ) / blockGranule; }

struct KeptBlock
{
    KeptBlock *next;
};

// What a thread keeps. Class n holds blocks of n granules; `room` says how many more, and is 0 before the first block
// is freed and after the thread has ended.
struct KeptBlocks
{
    KeptBlock *first[ blockClassCount + 1 ];
    uint32_t   room[ blockClassCount + 1 ];
    bool       opened;
};

#if PB_KEEP_BLOCKS

// Trivial, so that reaching it takes no guard.
[[gnu::tls_model( "initial-exec" )]] extern constinit thread_local KeptBlocks keptBlocks;

// A block of that class when none is kept, and one that cannot be kept.
void *AllocateNewBlock( size_t blockClass, int64_t size );
void  FreeUnkeptBlock( void *block, uint32_t blockClass );

// A block of at least `size` bytes for an object, and in *blockClass what FreeBlock needs to know about it.
inline void *AllocateBlock( int64_t size, uint32_t *blockClass )
{
    const size_t wanted = BlockClass( size );
    *blockClass         = wanted <= blockClassCount ? uint32_t( wanted ) : 0;
    KeptBlock *block    = wanted <= blockClassCount ? keptBlocks.first[ wanted ] : nullptr;
    if( !block ) return AllocateNewBlock( *blockClass, size );
    keptBlocks.first[ wanted ] = block->next;
    ++keptBlocks.room[ wanted ];
    return block;
}

// Gives the block of an object back. Class 0 is memory of the C library, as every block is that was resized.
inline void FreeBlock( void *block, uint32_t blockClass )
{
    if( keptBlocks.room[ blockClass ] == 0 ) return FreeUnkeptBlock( block, blockClass );
    --keptBlocks.room[ blockClass ];
    auto kept                      = static_cast< KeptBlock                      *>( block );
    kept->next                     = keptBlocks.first[ blockClass ];
    keptBlocks.first[ blockClass ] = kept;
}

#else

inline void *AllocateBlock( int64_t size, uint32_t *blockClass )
{
    *blockClass = 0;
    return pbMemAllocN( 1, size );
}

inline void FreeBlock( void *block, uint32_t ) { pbMemFree( block ); }

#endif

} // namespace pb
