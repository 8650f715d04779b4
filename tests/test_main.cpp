// The main function of the test programs: starts every module that is loaded, and stops them after the last test, so
// that what leaks is seen.
#include "pb/pb.h"

#include <gmock/gmock.h>

#include <vector>

int main( int argc, char **argv )
{
    testing::InitGoogleMock( &argc, argv );
    testing::GTEST_FLAG( death_test_style ) = "fast";

    std::vector< PbModule * > started;
    for( const char *name : { "pb", "in", "iri", "sipsn" } )
        if( PbModule *module = pbModuleFind( name ) ) {
            pbModuleStart( module );
            started.push_back( module );
        }
    const int result = RUN_ALL_TESTS();
    while( !started.empty() ) {
        pbModuleStop( started.back() );
        started.pop_back();
    }
    return result;
}
