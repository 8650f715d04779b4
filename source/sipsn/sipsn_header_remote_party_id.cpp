// SipsnHeaderRemotePartyId: the Remote-Party-ID header field, draft-ietf-sip-privacy-04 section 5.
#include "sipsn_header_remote_party_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderRemotePartyId
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderRemotePartyId::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderRemotePartyId::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderRemotePartyId::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( RemotePartyId, "Remote-Party-Id" )

static constexpr sipsn::LastLine< SipsnHeaderRemotePartyId, sipsn::Address< SipsnHeaderRemotePartyId > > shape{};

SIPSN_DEFINE_HEADER( RemotePartyId, SIPSN_HEADER_REMOTE_PARTY_ID, shape )

SipsnHeaderRemotePartyId *sipsnHeaderRemotePartyIdCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnHeaderRemotePartyId::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderRemotePartyIdIri( SipsnHeaderRemotePartyId *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderRemotePartyIdSetIri( SipsnHeaderRemotePartyId **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderRemotePartyId, hdr )

PbString *sipsnHeaderRemotePartyIdDisplayName( SipsnHeaderRemotePartyId *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderRemotePartyIdHasDisplayName( SipsnHeaderRemotePartyId *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderRemotePartyIdSetDisplayName( SipsnHeaderRemotePartyId **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderRemotePartyIdDelDisplayName( SipsnHeaderRemotePartyId **hdr ) { PB_DEL( hdr, displayName ); }

SipsnGenericParams *sipsnHeaderRemotePartyIdGenericParams( SipsnHeaderRemotePartyId *hdr )
{
    return PB_GET( hdr, genericParams );
}
void sipsnHeaderRemotePartyIdSetGenericParams( SipsnHeaderRemotePartyId **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
