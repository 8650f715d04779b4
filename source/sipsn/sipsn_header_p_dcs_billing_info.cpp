// SipsnHeaderPDcsBillingInfo: the P-DCS-Billing-Info header field, RFC 5503 section 7.1.
#include "sipsn_header_p_dcs_billing_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_param_forms.h"
#include "sipsn_text_rules.h"

struct SipsnHeaderPDcsBillingInfo
{
    PbObj               obj;
    PbString           *correlationId;
    PbString           *elementId;
    PbString           *elementHost;
    PbString           *rksgroup;
    PbString           *charge;
    PbString           *calling;
    PbString           *called;
    PbString           *routing;
    PbString           *locroute;
    PbString           *jip;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "correlationId", &SipsnHeaderPDcsBillingInfo::correlationId, sipsn::rule::correlationId ),
            sipsn::Text( "elementId", &SipsnHeaderPDcsBillingInfo::elementId, sipsn::rule::elementId ),
            sipsn::Text( "elementHost", &SipsnHeaderPDcsBillingInfo::elementHost, sipsn::rule::host ),
            sipsn::TextParam( "rksgroup", &SipsnHeaderPDcsBillingInfo::rksgroup, sipsn::rule::token ),
            sipsn::TextParam( "charge", &SipsnHeaderPDcsBillingInfo::charge, sipsn::rule::quotedIri ),
            sipsn::TextParam( "calling", &SipsnHeaderPDcsBillingInfo::calling, sipsn::rule::quotedIri ),
            sipsn::TextParam( "called", &SipsnHeaderPDcsBillingInfo::called, sipsn::rule::quotedIri ),
            sipsn::TextParam( "routing", &SipsnHeaderPDcsBillingInfo::routing, sipsn::rule::quotedIri ),
            sipsn::TextParam( "locroute", &SipsnHeaderPDcsBillingInfo::locroute, sipsn::rule::quotedIri ),
            sipsn::TextParam( "jip", &SipsnHeaderPDcsBillingInfo::jip, sipsn::rule::quotedWord ),
            sipsn::OtherParams( &SipsnHeaderPDcsBillingInfo::genericParams ),
        };
    }
};

// Three texts with a separator behind each of the first two, then parameters.
template< class T > struct BillingForm
{
    template< class Link > T *TryDecode( sipsn::BasicCursor< Link > &in ) const
    {
        pb::Ref value{ sipsn::New< T >() };
        if( !( value->correlationId = TryTake( in, sipsn::rule::correlationId ) ) || !in.Take( PbChar{ '/' } ) ||
            !( value->elementId = TryTake( in, sipsn::rule::elementId ) ) ||
            !in.Take( sipsn::SkipOne< '@' >, sipsn::quotedChar< '@' > ) ||
            !( value->elementHost = TryTake( in, sipsn::rule::host ) ) )
            return nullptr;
        return TryDecodeParams( in, *value.Get() ) ? value.Detach() : nullptr;
    }

    void Write( sipsn::TextWriter &out, T &value ) const
    {
        out.Text( value.correlationId );
        out.Char( '/' );
        out.Text( value.elementId );
        out.Char( '@' );
        sipsn::Write( out, sipsn::rule::host, value.elementHost );
        WriteParams( out, value );
    }
};

SIPSN_SINGLE_HEADER( PDcsBillingInfo, "P-Dcs-Billing-Info", SIPSN_HEADER_P_DCS_BILLING_INFO, BillingForm )

SipsnHeaderPDcsBillingInfo *sipsnHeaderPDcsBillingInfoCreate( PbString *correlationId, PbString *elementId,
                                                              PbString *elementHost )
{
    PB_ASSERT( sipsnCorrelationIdOk( correlationId ) );
    PB_ASSERT( sipsnElementIdOk( elementId ) );
    PB_ASSERT( sipsnHostOk( elementHost ) );
    auto *hdr        = sipsn::NewWith( &SipsnHeaderPDcsBillingInfo::correlationId, pb::Retain( correlationId ) );
    hdr->elementId   = pb::Retain( elementId );
    hdr->elementHost = pb::Retain( elementHost );
    return hdr;
}

SIPSN_TEXT( HeaderPDcsBillingInfo, hdr, CorrelationId, correlationId, sipsnCorrelationIdOk )
SIPSN_TEXT( HeaderPDcsBillingInfo, hdr, ElementId, elementId, sipsnElementIdOk )
SIPSN_TEXT( HeaderPDcsBillingInfo, hdr, ElementHost, elementHost, sipsnHostOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Rksgroup, rksgroup, sipsnTokenOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Charge, charge, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Calling, calling, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Called, called, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Routing, routing, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Locroute, locroute, sipsnIriOk )
SIPSN_OPTIONAL_TEXT( HeaderPDcsBillingInfo, hdr, Jip, jip, sipsnQuotableStringOk )
SIPSN_PARAMS( HeaderPDcsBillingInfo, hdr )
