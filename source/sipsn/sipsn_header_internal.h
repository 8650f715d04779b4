// The name constants of the header types, and the functions that create and release what their files keep while the
// module is started. Exported, but no part of the public interface.
#pragma once

#include "pb/pb.h"

PB_BEGIN_DECLS

#define FAMILY( Type, ... )                                                                                            \
    PB_API extern PbString *sipsn___Pbs##Type;                                                                         \
    PB_API void             sipsn___Header##Type##Startup( void );                                                     \
    PB_API void             sipsn___Header##Type##Shutdown( void );
#include "sipsn_families.inc"

PB_END_DECLS
