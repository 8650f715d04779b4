// SipsnFeatureParams: one set of features of Accept-Contact, Reject-Contact or Feature-Caps, RFC 3841 section 10 and
// RFC 6809 section 6.
#include "sipsn_feature_params.h"

#include "sipsn_param_forms.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( FeatureParams )

struct SipsnFeatureParams
{
    PbObj               obj;
    bool                require;
    bool                isExplicit;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::FlagParam( "require", &SipsnFeatureParams::require ),
            sipsn::FlagParam( "explicit", &SipsnFeatureParams::isExplicit, "isExplicit" ),
            sipsn::OtherParams( &SipsnFeatureParams::genericParams ),
        };
    }
};

SIPSN_VALUE( FeatureParams, features, SIPSN_FEATURE_PARAMS, sipsn::StarAndParams )

SIPSN_CREATE( FeatureParams )
SIPSN_FLAG( FeatureParams, features, Require, require )
SIPSN_FLAG( FeatureParams, features, IsExplicit, isExplicit )
SIPSN_PARAMS( FeatureParams, features )
