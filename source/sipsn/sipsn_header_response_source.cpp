// SipsnHeaderResponseSource: the Response-Source header field, 3GPP TS 24.229.
#include "sipsn_header_response_source.h"

#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderResponseSource
{
    PbObj               obj;
    PbString           *fe;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::TextParam( "fe", &SipsnHeaderResponseSource::fe, sipsn::rule::bracketedIri ),
            sipsn::OtherParams( &SipsnHeaderResponseSource::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( ResponseSource, "Response-Source", SIPSN_HEADER_RESPONSE_SOURCE, sipsn::OnlyParams )

SIPSN_CREATE( HeaderResponseSource )
SIPSN_OPTIONAL_TEXT( HeaderResponseSource, hdr, Fe, fe, sipsnIriOk )
SIPSN_PARAMS( HeaderResponseSource, hdr )
