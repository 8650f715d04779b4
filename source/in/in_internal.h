// The module of in, for its sources. Exported, but no part of the public interface; never installed.
#pragma once

#include "pb/pb_internal.h"

PB_BEGIN_DECLS

PB_API extern PbModule             in___module;
PB_API extern const PbModuleRecord in___module_record;
PB_API extern const char *const    in___module_version_string;

// The name with every label in ASCII, a new reference; null when it is not a valid name.
PB_API PbString *in___DnsTryToAscii( PbString *name );

PB_END_DECLS
