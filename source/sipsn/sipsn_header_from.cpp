// SipsnHeaderFrom: the From header field, RFC 3261 section 20.20, with the epid of some endpoints.
#include "sipsn_header_from.h"

#include "sipsn_dialog_party.h"
#include "sipsn_uri_member.h"

SIPSN_DEFINE_NAME( From, "From" )

static constexpr sipsn::LastLine< SipsnHeaderFrom, sipsn::Address< SipsnHeaderFrom > > shape{};

SIPSN_DEFINE_HEADER( From, SIPSN_HEADER_FROM, shape )

SipsnHeaderFrom *sipsnHeaderFromCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith< SipsnHeaderFrom >( &SipsnHeaderFrom::iri, pb::Retain( iri ) );
}

SipsnHeaderFrom *sipsnHeaderFromCreateFromHeaderTo( SipsnHeaderTo *hdrTo )
{
    PB_ASSERT( hdrTo );
    return sipsn::Turned< SipsnHeaderFrom >( hdrTo );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderFromIri( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderFromSetIri( SipsnHeaderFrom **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderFrom, hdr )

PbString *sipsnHeaderFromDisplayName( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderFromHasDisplayName( SipsnHeaderFrom *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderFromSetDisplayName( SipsnHeaderFrom **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderFromDelDisplayName( SipsnHeaderFrom **hdr ) { PB_DEL( hdr, displayName ); }

PbString *sipsnHeaderFromTag( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, tag ); }
bool      sipsnHeaderFromHasTag( SipsnHeaderFrom *hdr ) { return PB_HAS( hdr, tag ); }
void      sipsnHeaderFromSetTag( SipsnHeaderFrom **hdr, PbString *tag )
{
    PB_SET( hdr, tag, sipsnTagOk( tag ), pb::Retain( tag ) );
}
void sipsnHeaderFromDelTag( SipsnHeaderFrom **hdr ) { PB_DEL( hdr, tag ); }

PbString *sipsnHeaderFromEpid( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, epid ); }
bool      sipsnHeaderFromHasEpid( SipsnHeaderFrom *hdr ) { return PB_HAS( hdr, epid ); }
void      sipsnHeaderFromSetEpid( SipsnHeaderFrom **hdr, PbString *epid )
{
    PB_SET( hdr, epid, sipsnEpidOk( epid ), pb::Retain( epid ) );
}
void sipsnHeaderFromDelEpid( SipsnHeaderFrom **hdr ) { PB_DEL( hdr, epid ); }

SipsnGenericParams *sipsnHeaderFromGenericParams( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderFromSetGenericParams( SipsnHeaderFrom **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
