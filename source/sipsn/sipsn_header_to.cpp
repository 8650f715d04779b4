// SipsnHeaderTo: the To header field, RFC 3261 section 20.39, with the epid of some endpoints.
#include "sipsn_header_to.h"

#include "sipsn_header_address.h"
#include "sipsn_header_from.h"
#include "sipsn_header_internal.h"

struct SipsnHeaderTo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *tag;
    PbString           *epid;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderTo::iri, &SipsnHeaderTo::displayName, &SipsnHeaderTo::tag,
                                 &SipsnHeaderTo::epid, &SipsnHeaderTo::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderTo, sipsn___PbsTo, "To" )

static constexpr auto shape = sipsn::dialogParty< SipsnHeaderTo >;

SIPSN_DEFINE_HEADER( SipsnHeaderTo, sipsnHeaderTo, SIPSN_HEADER_TO, sipsn___PbsTo, shape )

SipsnHeaderTo *sipsnHeaderToCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return shape.Create( pb::Retain( iri ) );
}

SipsnHeaderTo *sipsnHeaderToCreateFromHeaderFrom( SipsnHeaderFrom *hdrFrom )
{
    PB_ASSERT( hdrFrom );
    SipsnHeaderTo *hdr = pb::New< SipsnHeaderTo >();
    hdr->iri           = sipsnHeaderFromIri( hdrFrom );
    hdr->displayName   = sipsnHeaderFromDisplayName( hdrFrom );
    hdr->tag           = sipsnHeaderFromTag( hdrFrom );
    hdr->epid          = sipsnHeaderFromEpid( hdrFrom );
    hdr->genericParams = sipsnHeaderFromGenericParams( hdrFrom );
    return hdr;
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderToIri( SipsnHeaderTo *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderToSetIri( SipsnHeaderTo **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnHeaderToDisplayName( SipsnHeaderTo *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderToHasDisplayName( SipsnHeaderTo *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderToDelDisplayName( SipsnHeaderTo **hdr ) { PB_DEL( hdr, displayName ); }
void      sipsnHeaderToSetDisplayName( SipsnHeaderTo **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

PbString *sipsnHeaderToTag( SipsnHeaderTo *hdr ) { return PB_GET( hdr, tag ); }
bool      sipsnHeaderToHasTag( SipsnHeaderTo *hdr ) { return PB_HAS( hdr, tag ); }
void      sipsnHeaderToDelTag( SipsnHeaderTo **hdr ) { PB_DEL( hdr, tag ); }
void      sipsnHeaderToSetTag( SipsnHeaderTo **hdr, PbString *tag )
{
    PB_SET( hdr, tag, sipsnTagOk( tag ), pb::Retain( tag ) );
}

PbString *sipsnHeaderToEpid( SipsnHeaderTo *hdr ) { return PB_GET( hdr, epid ); }
bool      sipsnHeaderToHasEpid( SipsnHeaderTo *hdr ) { return PB_HAS( hdr, epid ); }
void      sipsnHeaderToDelEpid( SipsnHeaderTo **hdr ) { PB_DEL( hdr, epid ); }
void      sipsnHeaderToSetEpid( SipsnHeaderTo **hdr, PbString *epid )
{
    PB_SET( hdr, epid, sipsnEpidOk( epid ), pb::Retain( epid ) );
}

SipsnGenericParams *sipsnHeaderToGenericParams( SipsnHeaderTo *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderToSetGenericParams( SipsnHeaderTo **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
