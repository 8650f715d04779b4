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

inline constexpr size_t   blockGranule    = 32;      // blocks of one class differ by less than this
inline constexpr uint32_t blockClassCount = 64;      // the largest has 2 KiB
inline constexpr uint32_t maxKeptGranules = 1 << 15; // 1 MiB, of blocks of all classes

// The class of blocks of that size, from 1 on; above the last, blocks are the C library's, and of class 0.
inline constexpr size_t BlockClass( int64_t size ) { return ( size_t( size ) + blockGranule - 1 ) / blockGranule; }

struct KeptBlock
{
    KeptBlock *next;
};

// What a thread keeps. Class n holds blocks of n granules; `room` says for how many more there is room, and is 0 before
// the first block is freed and after the thread has ended.
struct KeptBlocks
{
    KeptBlock *first[ blockClassCount + 1 ];
    uint32_t   room;
    bool       opened;
};

#if PB_KEEP_BLOCKS

// Trivial, so that reaching it takes no guard.
[[gnu::tls_model( "initial-exec" )]] extern constinit thread_local KeptBlocks keptBlocks;

void FreeUnkeptBlock( void *block, uint32_t blockClass ); // one that cannot be kept

// A kept block of the class, or null.
inline void *TryTakeBlock( size_t blockClass )
{
    KeptBlock *block = blockClass <= blockClassCount ? keptBlocks.first[ blockClass ] : nullptr;
    if( !block ) return nullptr;
    keptBlocks.first[ blockClass ] = block->next;
    keptBlocks.room += uint32_t( blockClass );
    return block;
}

// Gives the block of an object back. Class 0 is memory of the C library, as every block is that was resized; less 1, it
// is above all room.
inline void FreeBlock( void *block, uint32_t blockClass )
{
    if( blockClass - 1 >= keptBlocks.room ) return FreeUnkeptBlock( block, blockClass );
    keptBlocks.room -= blockClass;
    auto kept = static_cast< KeptBlock * >( block );

    kept->next                     = keptBlocks.first[ blockClass ];
    keptBlocks.first[ blockClass ] = kept;
}

#else

inline void *TryTakeBlock( size_t ) { return nullptr; }
inline void  FreeBlock( void *block, uint32_t ) { pbMemFree( block ); }

#endif

inline PbObj *InitObject( void *block, PbSort *sort, uint32_t blockClass )
{
    auto obj = static_cast< PbObj * >( block );

    obj->sort       = sort;
    obj->count      = 1;
    obj->blockClass = blockClass;
    return obj;
}

PbObj *CreateInNewBlock( int64_t size, PbSort *sort );

// An object of one reference whose members are not set. The rare way is a call of its own at the end, so that the usual
// one saves no registers for it.
inline PbObj *CreateObject( int64_t size, PbSort *sort )
{
    const size_t blockClass = BlockClass( size );
    void        *block      = TryTakeBlock( blockClass );
    return block ? InitObject( block, sort, uint32_t( blockClass ) ) : CreateInNewBlock( size, sort );
}

} // namespace pb
