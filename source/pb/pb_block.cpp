// The memory of objects: what happens when a thread keeps no block of the size, or can keep no more.
#include "pb_block.h"

#if PB_KEEP_BLOCKS

namespace pb {

[[gnu::tls_model( "initial-exec" )]] constinit thread_local KeptBlocks keptBlocks{};

namespace {

// Frees what the thread kept when it ends; what is freed even later goes to the C library.
struct Closer
{
    ~Closer()
    {
        keptBlocks.room = 0;
        for( KeptBlock *&first : keptBlocks.first )
            while( first ) pbMemFree( std::exchange( first, first->next ) );
    }
};

// Makes room, once in the life of a thread.
void Open()
{
    static thread_local Closer closer;
    static_cast< void >( &closer );
    keptBlocks.opened = true;
    keptBlocks.room   = maxKeptGranules;
}

} // namespace

void FreeUnkeptBlock( void *block, uint32_t blockClass )
{
    if( blockClass == 0 || keptBlocks.opened ) return pbMemFree( block );
    Open();
    FreeBlock( block, blockClass );
}

} // namespace pb

#endif

PbObj *pb::CreateInNewBlock( int64_t size, PbSort *sort )
{
    const size_t wanted = BlockClass( size );
    if( !PB_KEEP_BLOCKS || wanted > blockClassCount ) return InitObject( pbMemAllocN( 1, size ), sort, 0 );
    return InitObject( pbMemAllocN( 1, int64_t( wanted * blockGranule ) ), sort, uint32_t( wanted ) );
}
