// SipsnHeaderPCalledPartyId: the P-Called-Party-ID header field, RFC 7315 section 4.2.
#include "sipsn_header_p_called_party_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderPCalledPartyId
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderPCalledPartyId::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderPCalledPartyId::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderPCalledPartyId::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( PCalledPartyId, "P-Called-Party-Id" )

static constexpr sipsn::LastLine< SipsnHeaderPCalledPartyId, sipsn::Address< SipsnHeaderPCalledPartyId > > shape{};

SIPSN_DEFINE_HEADER( PCalledPartyId, SIPSN_HEADER_P_CALLED_PARTY_ID, shape )

SipsnHeaderPCalledPartyId *sipsnHeaderPCalledPartyIdCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnHeaderPCalledPartyId::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderPCalledPartyIdIri( SipsnHeaderPCalledPartyId *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderPCalledPartyIdSetIri( SipsnHeaderPCalledPartyId **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderPCalledPartyId, hdr )

PbString *sipsnHeaderPCalledPartyIdDisplayName( SipsnHeaderPCalledPartyId *hdr ) { return PB_GET( hdr, displayName ); }
bool sipsnHeaderPCalledPartyIdHasDisplayName( SipsnHeaderPCalledPartyId *hdr ) { return PB_HAS( hdr, displayName ); }
void sipsnHeaderPCalledPartyIdSetDisplayName( SipsnHeaderPCalledPartyId **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderPCalledPartyIdDelDisplayName( SipsnHeaderPCalledPartyId **hdr ) { PB_DEL( hdr, displayName ); }

SipsnGenericParams *sipsnHeaderPCalledPartyIdGenericParams( SipsnHeaderPCalledPartyId *hdr )
{
    return PB_GET( hdr, genericParams );
}
void sipsnHeaderPCalledPartyIdSetGenericParams( SipsnHeaderPCalledPartyId **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
