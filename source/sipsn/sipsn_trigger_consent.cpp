// SipsnTriggerConsent: one relay of Trigger-Consent, RFC 5360 section 5.11.2.
#include "sipsn_trigger_consent.h"

#include "sipsn_rules.h"
#include "sipsn_text_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( TriggerConsent )

struct SipsnTriggerConsent
{
    PbObj               obj;
    PbString           *iri;
    PbString           *targetUri;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnTriggerConsent::iri, sipsn::rule::bareIri ),
            sipsn::TextParam( "target-uri", &SipsnTriggerConsent::targetUri, sipsn::rule::quotedIri, "targetUri" ),
            sipsn::OtherParams( &SipsnTriggerConsent::genericParams ),
        };
    }
};

SIPSN_VALUE( TriggerConsent, trigger, SIPSN_TRIGGER_CONSENT, sipsn::Params )

SIPSN_CREATE_TEXT( TriggerConsent, iri, sipsnBareIriOk )
SIPSN_TEXT( TriggerConsent, trigger, Iri, iri, sipsnBareIriOk )
SIPSN_OPTIONAL_TEXT( TriggerConsent, trigger, TargetUri, targetUri, sipsnIriOk )
SIPSN_PARAMS( TriggerConsent, trigger )

SipsnUri *sipsnTriggerConsentTryDecodeUri( SipsnTriggerConsent *trigger )
{
    PB_ASSERT( trigger );
    return sipsnUriTryDecode( trigger->iri );
}
void sipsnTriggerConsentSetUri( SipsnTriggerConsent **trigger, SipsnUri *uri )
{
    PB_ASSERT( uri );
    sipsnTriggerConsentSetIri( trigger, pb::Ref{ sipsnUriEncode( uri ) }.Get() );
}
