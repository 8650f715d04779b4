// SipsnInfoPackage: one package of Recv-Info, RFC 6086 section 9.2.
#include "sipsn_info_package.h"

#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( InfoPackage )

struct SipsnInfoPackage
{
    PbObj               obj;
    PbString           *name;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "name", &SipsnInfoPackage::name, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnInfoPackage::genericParams ),
        };
    }
};

SIPSN_VALUE( InfoPackage, package, SIPSN_INFO_PACKAGE, sipsn::Params )

SIPSN_CREATE_TEXT( InfoPackage, name, sipsnTokenOk )
SIPSN_TEXT( InfoPackage, package, Name, name, sipsnTokenOk )
SIPSN_PARAMS( InfoPackage, package )
