// SipsnHeaderFrom: the From header field, RFC 3261 section 20.20, with the epid of some endpoints.
#include "sipsn_header_from.h"

#include "sipsn_header_address.h"
#include "sipsn_header_internal.h"
#include "sipsn_header_to.h"

struct SipsnHeaderFrom
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *tag;
    PbString           *epid;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderFrom::iri, &SipsnHeaderFrom::displayName, &SipsnHeaderFrom::tag,
                                 &SipsnHeaderFrom::epid, &SipsnHeaderFrom::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderFrom, sipsn___PbsFrom, "From" )

static constexpr auto shape = sipsn::dialogParty< SipsnHeaderFrom >;

SIPSN_DEFINE_HEADER( SipsnHeaderFrom, sipsnHeaderFrom, SIPSN_HEADER_FROM, sipsn___PbsFrom, shape )

SipsnHeaderFrom *sipsnHeaderFromCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return shape.Create( pb::Retain( iri ) );
}

SipsnHeaderFrom *sipsnHeaderFromCreateFromHeaderTo( SipsnHeaderTo *hdrTo )
{
    PB_ASSERT( hdrTo );
    SipsnHeaderFrom *hdr = pb::New< SipsnHeaderFrom >();
    hdr->iri             = sipsnHeaderToIri( hdrTo );
    hdr->displayName     = sipsnHeaderToDisplayName( hdrTo );
    hdr->tag             = sipsnHeaderToTag( hdrTo );
    hdr->epid            = sipsnHeaderToEpid( hdrTo );
    hdr->genericParams   = sipsnHeaderToGenericParams( hdrTo );
    return hdr;
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderFromIri( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderFromSetIri( SipsnHeaderFrom **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnHeaderFromDisplayName( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderFromHasDisplayName( SipsnHeaderFrom *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderFromDelDisplayName( SipsnHeaderFrom **hdr ) { PB_DEL( hdr, displayName ); }
void      sipsnHeaderFromSetDisplayName( SipsnHeaderFrom **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

PbString *sipsnHeaderFromTag( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, tag ); }
bool      sipsnHeaderFromHasTag( SipsnHeaderFrom *hdr ) { return PB_HAS( hdr, tag ); }
void      sipsnHeaderFromDelTag( SipsnHeaderFrom **hdr ) { PB_DEL( hdr, tag ); }
void      sipsnHeaderFromSetTag( SipsnHeaderFrom **hdr, PbString *tag )
{
    PB_SET( hdr, tag, sipsnTagOk( tag ), pb::Retain( tag ) );
}

PbString *sipsnHeaderFromEpid( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, epid ); }
bool      sipsnHeaderFromHasEpid( SipsnHeaderFrom *hdr ) { return PB_HAS( hdr, epid ); }
void      sipsnHeaderFromDelEpid( SipsnHeaderFrom **hdr ) { PB_DEL( hdr, epid ); }
void      sipsnHeaderFromSetEpid( SipsnHeaderFrom **hdr, PbString *epid )
{
    PB_SET( hdr, epid, sipsnEpidOk( epid ), pb::Retain( epid ) );
}

SipsnGenericParams *sipsnHeaderFromGenericParams( SipsnHeaderFrom *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderFromSetGenericParams( SipsnHeaderFrom **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
