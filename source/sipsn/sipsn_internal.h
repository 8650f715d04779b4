// What the source files of the library share on top of pb: the module and the way types are defined in it.
#pragma once

#include "pb/pb_internal.h"

PB_BEGIN_DECLS

PB_API extern PbModule             sipsn___module;
PB_API extern const PbModuleRecord sipsn___module_record;
PB_API extern const char *const    sipsn___module_version_string;

PB_END_DECLS

// PB_DEFINE_TYPE for this module: "SIPSN_REASON" names both the sort and, in `sipsn___sort_SIPSN_REASON`, its record.
#define SIPSN_DEFINE_TYPE( Type, prefix, SORT, self, pair, toText )                                                    \
    PB_DEFINE_TYPE( Type, prefix, sipsn___sort_##SORT, #SORT, sipsn___module, self, pair, toText )

namespace sipsn {

// The string of a Cstr or Wcstr form, for the length of the call.
inline pb::Ref< PbString > StringFrom( const char *text, int64_t length )
{
    return pb::Ref{ pbStringCreateFromCstr( text, length ) };
}
inline pb::Ref< PbString > StringFrom( const wchar_t *text, int64_t length )
{
    return pb::Ref{ pbStringCreateFromWcstr( text, length ) };
}

} // namespace sipsn
