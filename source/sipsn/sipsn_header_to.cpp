// SipsnHeaderTo: the To header field, RFC 3261 section 20.39, with the epid of some endpoints.
#include "sipsn_header_to.h"

#include "sipsn_dialog_party.h"
#include "sipsn_uri_member.h"

SIPSN_DEFINE_NAME( To, "To" )

static constexpr sipsn::LastLine< SipsnHeaderTo, sipsn::Address< SipsnHeaderTo > > shape{};

SIPSN_DEFINE_HEADER( To, SIPSN_HEADER_TO, shape )

SipsnHeaderTo *sipsnHeaderToCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith< SipsnHeaderTo >( &SipsnHeaderTo::iri, pb::Retain( iri ) );
}

SipsnHeaderTo *sipsnHeaderToCreateFromHeaderFrom( SipsnHeaderFrom *hdrFrom )
{
    PB_ASSERT( hdrFrom );
    return sipsn::Turned< SipsnHeaderTo >( hdrFrom );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderToIri( SipsnHeaderTo *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderToSetIri( SipsnHeaderTo **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderTo, hdr )

PbString *sipsnHeaderToDisplayName( SipsnHeaderTo *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderToHasDisplayName( SipsnHeaderTo *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderToSetDisplayName( SipsnHeaderTo **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderToDelDisplayName( SipsnHeaderTo **hdr ) { PB_DEL( hdr, displayName ); }

PbString *sipsnHeaderToTag( SipsnHeaderTo *hdr ) { return PB_GET( hdr, tag ); }
bool      sipsnHeaderToHasTag( SipsnHeaderTo *hdr ) { return PB_HAS( hdr, tag ); }
void      sipsnHeaderToSetTag( SipsnHeaderTo **hdr, PbString *tag )
{
    PB_SET( hdr, tag, sipsnTagOk( tag ), pb::Retain( tag ) );
}
void sipsnHeaderToDelTag( SipsnHeaderTo **hdr ) { PB_DEL( hdr, tag ); }

PbString *sipsnHeaderToEpid( SipsnHeaderTo *hdr ) { return PB_GET( hdr, epid ); }
bool      sipsnHeaderToHasEpid( SipsnHeaderTo *hdr ) { return PB_HAS( hdr, epid ); }
void      sipsnHeaderToSetEpid( SipsnHeaderTo **hdr, PbString *epid )
{
    PB_SET( hdr, epid, sipsnEpidOk( epid ), pb::Retain( epid ) );
}
void sipsnHeaderToDelEpid( SipsnHeaderTo **hdr ) { PB_DEL( hdr, epid ); }

SipsnGenericParams *sipsnHeaderToGenericParams( SipsnHeaderTo *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderToSetGenericParams( SipsnHeaderTo **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
