// SipsnHeaderPDcsTracePartyId: the P-DCS-Trace-Party-ID header field, RFC 5503 section 5.1.
#include "sipsn_header_p_dcs_trace_party_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderPDcsTracePartyId
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *timestamp;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderPDcsTracePartyId::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderPDcsTracePartyId::displayName, sipsn::rule::displayName ),
            sipsn::TextParam( "timestamp", &SipsnHeaderPDcsTracePartyId::timestamp, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnHeaderPDcsTracePartyId::genericParams ),
        };
    }
};

SIPSN_SINGLE_HEADER( PDcsTracePartyId, "P-Dcs-Trace-Party-Id", SIPSN_HEADER_P_DCS_TRACE_PARTY_ID, sipsn::Address )

SIPSN_CREATE_TEXT( HeaderPDcsTracePartyId, iri, sipsnIriOk )
SIPSN_TEXT( HeaderPDcsTracePartyId, hdr, Iri, iri, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsTracePartyId, hdr, DisplayName, displayName, sipsnDisplayNameOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsTracePartyId, hdr, Timestamp, timestamp, sipsnTokenOk )
SIPSN_PARAMS( HeaderPDcsTracePartyId, hdr )
SIPSN_DEFINE_URI( HeaderPDcsTracePartyId, hdr )
