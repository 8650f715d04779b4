// How a benchmark measures one operation.
#pragma once

#include "allocations.h"

#include <benchmark/benchmark.h>

// Runs the operation for as long as the benchmark lasts and adds how often it takes memory. The first run, which may
// make what later ones find, is not measured.
template< class Operation > void Measure( benchmark::State &state, Operation operation )
{
    operation();
    const int64_t before = CountAllocations();
    for( auto _ : state ) operation();
    const double count              = double( CountAllocations() - before );
    state.counters[ "allocations" ] = benchmark::Counter( count, benchmark::Counter::kAvgIterations );
}

// For operations on a message: also the bytes per second.
template< class Operation > void MeasureBytes( benchmark::State &state, int64_t bytes, Operation operation )
{
    Measure( state, operation );
    state.SetBytesProcessed( state.iterations() * bytes );
}
