// SipsnHeaderContentLanguage: the Content-Language header field, RFC 3261 section 20.13.
#include "sipsn_header_content_language.h"

#include "sipsn_header_frame.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderContentLanguage
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Items( "languageTags", &SipsnHeaderContentLanguage::items, sipsn::rule::languageTag ) };
    }
};

SIPSN_LIST_HEADER( ContentLanguage, "Content-Language", SIPSN_HEADER_CONTENT_LANGUAGE, givesNull )

SIPSN_TEXTS( ContentLanguage, LanguageTags, LanguageTag, languageTag, sipsnLanguageTagOk )
