// SipsnHeaderTriggerConsent: the Trigger-Consent header field, RFC 5360 section 5.11.2.
#include "sipsn_header_trigger_consent.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( TriggerConsent )

struct SipsnHeaderTriggerConsent
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "triggerConsents", &SipsnHeaderTriggerConsent::items,
                                                  sipsn::SkipListItem, sipsn::schemaTriggerConsent ) };
    }
};

SIPSN_LIST_HEADER( TriggerConsent, "Trigger-Consent", SIPSN_HEADER_TRIGGER_CONSENT, givesNull )

SIPSN_VALUES( TriggerConsent, TriggerConsents, TriggerConsent, TriggerConsent, trigger )
