// Runs one operation on one message or value so many times and nothing else, to be counted from outside:
//
//     sipsn_count OPERATION FILE TIMES            the operations of operations.h
//     sipsn_count scan-value|decode-value|encode-value TYPE TIMES
#include "operations.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int notPossible = 3; // an exit status that valgrind itself does not give

} // namespace

int main( int argc, char **argv )
{
    if( argc != 4 ) {
        std::fputs( "sipsn_count OPERATION FILE TIMES\nsipsn_count scan-value|decode-value|encode-value TYPE TIMES\n",
                    stderr );
        return 2;
    }
    const int64_t times = std::atoll( argv[ 3 ] );
    pbModuleStart( sipsnModule() );
    const bool done = RunOperation( argv[ 1 ], argv[ 2 ], [ = ]( auto make ) {
        for( int64_t n = 0; n < times; ++n ) make();
    } );
    pbModuleStop( sipsnModule() );
    return done ? 0 : notPossible;
}
