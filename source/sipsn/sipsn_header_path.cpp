// SipsnHeaderPath: the Path header field, RFC 3327 section 4.
#include "sipsn_header_path.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Route )

struct SipsnHeaderPath
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "routes", &SipsnHeaderPath::items, sipsn___SkipRoute, sipsn::schemaRoute ) };
    }
};

SIPSN_LIST_HEADER( Path, "Path", SIPSN_HEADER_PATH, givesNull )

SIPSN_VALUES( Path, Routes, Route, Route, route )
