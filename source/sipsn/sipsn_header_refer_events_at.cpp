// SipsnHeaderReferEventsAt: the Refer-Events-At header field, RFC 7614 section 4.8.
#include "sipsn_header_refer_events_at.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderReferEventsAt
{
    PbObj               obj;
    PbString           *iri;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderReferEventsAt::iri, sipsn::rule::iri ),
            sipsn::OtherParams( &SipsnHeaderReferEventsAt::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( ReferEventsAt, "Refer-Events-At", SIPSN_HEADER_REFER_EVENTS_AT, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderReferEventsAt, iri, sipsnIriOk )
SIPSN_TEXT( HeaderReferEventsAt, hdr, Iri, iri, sipsnIriOk )
SIPSN_PARAMS( HeaderReferEventsAt, hdr )
SIPSN_DEFINE_URI( HeaderReferEventsAt, hdr )
