// SipsnHeaderFeatureCaps: the Feature-Caps header field, RFC 6809 section 6.
#include "sipsn_header_feature_caps.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( FeatureParams )

struct SipsnHeaderFeatureCaps
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "features", &SipsnHeaderFeatureCaps::items, sipsn::SkipListItem,
                                                  sipsn::schemaFeatureParams ) };
    }
};

SIPSN_LIST_HEADER( FeatureCaps, "Feature-Caps", SIPSN_HEADER_FEATURE_CAPS, givesNull )

SIPSN_VALUES( FeatureCaps, Features, Feature, FeatureParams, features )
