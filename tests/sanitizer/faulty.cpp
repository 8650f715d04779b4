// Does wrong what its argument says, for a sanitizer to find.
#include "pb/pb.h"

#include <cstdint>
#include <string_view>
#include <thread>

int main( int argc, char **argv )
{
    const std::string_view fault = argc > 1 ? argv[ 1 ] : "";
    pbModuleStart( pbModule() );
    if( fault == "leak" ) {
        [[maybe_unused]] PbString *volatile lost = pbStringCreateFromCstr( "lost", -1 );
        lost                                     = nullptr;
    } else if( fault == "use-after-release" ) {
        PbString *string = pbStringCreateFromCstr( "gone", -1 );
        pbStringRelease( string );
        return int( pbStringLength( string ) );
    } else if( fault == "overflow" ) {
        volatile int64_t large = INT64_MAX;
        return int( large + argc );
    } else if( fault == "race" ) {
        PbString   *string = pbStringCreate();
        const auto  append = [ & ] { pbStringAppendChar( &string, 'x' ); };
        std::thread first{ append }, second{ append };
        first.join();
        second.join();
        pbStringRelease( string );
    }
    pbModuleStop( pbModule() );
}
