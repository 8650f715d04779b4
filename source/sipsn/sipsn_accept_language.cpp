// SipsnAcceptLanguage: one language of Accept-Language, RFC 3261 section 20.3.
#include "sipsn_accept_language.h"

#include "sipsn_rules.h"
#include "sipsn_text_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( AcceptLanguage )

struct SipsnAcceptLanguage
{
    PbObj               obj;
    PbString           *languageRange;
    int64_t             qvalue;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "languageRange", &SipsnAcceptLanguage::languageRange, sipsn::rule::languageRange ),
            sipsn::IntParam( "q", &SipsnAcceptLanguage::qvalue, sipsn::rule::qvalue ),
            sipsn::OtherParams( &SipsnAcceptLanguage::genericParams ),
        };
    }
};

SIPSN_VALUE( AcceptLanguage, language, SIPSN_ACCEPT_LANGUAGE, sipsn::Params )

SIPSN_CREATE_TEXT( AcceptLanguage, languageRange, sipsnLanguageRangeOk )
SIPSN_TEXT( AcceptLanguage, language, LanguageRange, languageRange, sipsnLanguageRangeOk )
SIPSN_OPTIONAL_INT( AcceptLanguage, language, Qvalue, qvalue, sipsnQvalueOk )
SIPSN_PARAMS( AcceptLanguage, language )
