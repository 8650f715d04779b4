// SipsnHeaderAcceptLanguage: the Accept-Language header field, RFC 3261 section 20.3.
#include "sipsn_header_accept_language.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( AcceptLanguage )

struct SipsnHeaderAcceptLanguage
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "acceptLanguages", &SipsnHeaderAcceptLanguage::items,
                                                  sipsn::SkipListItem, sipsn::schemaAcceptLanguage ) };
    }
};

SIPSN_LIST_HEADER( AcceptLanguage, "Accept-Language", SIPSN_HEADER_ACCEPT_LANGUAGE, givesEmptyHeader )

SIPSN_VALUES( AcceptLanguage, AcceptLanguages, AcceptLanguage, AcceptLanguage, language )
