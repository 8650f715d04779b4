// The name constant of a header type, and the functions that create and release what its file keeps while the module is
// started. Exported, but no part of the public interface.
#pragma once

#include "pb/pb.h"

#define SIPSN_DECLARE_NAME( Family )                                                                                   \
    PB_BEGIN_DECLS                                                                                                     \
    PB_API extern PbString *sipsn___Pbs##Family;                                                                       \
    PB_API void             sipsn___Header##Family##Startup( void );                                                   \
    PB_API void             sipsn___Header##Family##Shutdown( void );                                                  \
    PB_END_DECLS
