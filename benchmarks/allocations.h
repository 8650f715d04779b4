// How often the process has taken heap memory, and how many blocks of it stand, counted in whatever library they were
// taken.
#pragma once

#include <cstdint>

int64_t CountAllocations();
int64_t CountBlocks();
