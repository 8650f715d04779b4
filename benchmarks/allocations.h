// How many blocks of heap memory the process has taken, counted in whatever library they were taken.
#pragma once

#include <cstdint>

int64_t CountAllocations();
