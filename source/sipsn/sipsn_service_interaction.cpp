// SipsnServiceInteraction: one item of Service-Interact-Info, 3GPP TS 24.229.
#include "sipsn_service_interaction.h"

#include "sipsn_param_forms.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( ServiceInteraction )

struct SipsnServiceInteraction
{
    PbObj               obj;
    PbString           *executedService;
    PbString           *avoidService;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::TextParam( "executed-service", &SipsnServiceInteraction::executedService, sipsn::rule::genValue,
                              "executedService" ),
            sipsn::TextParam( "avoid-service", &SipsnServiceInteraction::avoidService, sipsn::rule::genValue,
                              "avoidService" ),
            sipsn::OtherParams( &SipsnServiceInteraction::genericParams ),
        };
    }
};

SIPSN_VALUE( ServiceInteraction, service, SIPSN_SERVICE_INTERACTION, sipsn::OnlyParams )

SIPSN_CREATE( ServiceInteraction )
SIPSN_OPTIONAL_TEXT( ServiceInteraction, service, ExecutedService, executedService, sipsnQuotableStringOk )
SIPSN_OPTIONAL_TEXT( ServiceInteraction, service, AvoidService, avoidService, sipsnQuotableStringOk )
SIPSN_PARAMS( ServiceInteraction, service )
