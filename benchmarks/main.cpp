// The main function of the benchmarks: as benchmark::benchmark_main, with the library started.
#include "sipsn/sipsn.h"

#include <benchmark/benchmark.h>

int main( int argc, char **argv )
{
    benchmark::Initialize( &argc, argv );
    if( benchmark::ReportUnrecognizedArguments( argc, argv ) ) return 1;
    pbModuleStart( sipsnModule() );
    benchmark::RunSpecifiedBenchmarks();
    pbModuleStop( sipsnModule() );
}
