// Runs one operation on one message or value and prints what heap memory it takes:
//
//     sipsn_heap OPERATION FILE|TYPE
//
// Four numbers, each for one run: calls of the allocator when what was made is released at once, so that objects use
// the memory of earlier ones; calls when nothing is released; and then the blocks and the bytes that stay taken, with
// what the allocator itself adds to a block.
#include "allocations.h"
#include "operations.h"

#include <cstdio>
#include <malloc.h>
#include <vector>

namespace {

constexpr int     notPossible = 3;
constexpr int64_t times       = 300;

struct Taken
{
    int64_t allocations = CountAllocations(), blocks = CountBlocks(), bytes = int64_t( mallinfo2().uordblks );
};

double PerRun( int64_t before, int64_t after ) { return double( after - before ) / double( times ); }

template< class Make > void Print( Make make )
{
    for( int64_t n = 0; n < times; ++n ) make();
    const Taken released;
    for( int64_t n = 0; n < times; ++n ) make();
    const Taken again;

    std::vector< decltype( make() ) > held;
    held.reserve( 2 * times );
    for( int64_t n = 0; n < times; ++n ) held.push_back( make() );
    const Taken before;
    for( int64_t n = 0; n < times; ++n ) held.push_back( make() );
    const Taken after;
    std::printf( "%.2f %.2f %.2f %.1f\n", PerRun( released.allocations, again.allocations ),
                 PerRun( before.allocations, after.allocations ), PerRun( before.blocks, after.blocks ),
                 PerRun( before.bytes, after.bytes ) );
}

} // namespace

int main( int argc, char **argv )
{
    if( argc != 3 ) {
        std::fputs( "sipsn_heap OPERATION FILE|TYPE\n", stderr );
        return 2;
    }
    pbModuleStart( sipsnModule() );
    const bool done = RunOperation( argv[ 1 ], argv[ 2 ], []( auto make ) { Print( make ); } );
    pbModuleStop( sipsnModule() );
    return done ? 0 : notPossible;
}
