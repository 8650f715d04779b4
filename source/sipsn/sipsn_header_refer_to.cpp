// SipsnHeaderReferTo: the Refer-To header field, RFC 3515 section 2.1.
#include "sipsn_header_refer_to.h"

#include "sipsn_header_address.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderReferTo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    using Members =
        pb::Members< &SipsnHeaderReferTo::iri, &SipsnHeaderReferTo::displayName, &SipsnHeaderReferTo::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderReferTo, sipsn___PbsReferTo, "Refer-To" )

static constexpr sipsn::Address< SipsnHeaderReferTo > shape{ .bareAgain = sipsn___SkipUri };

SIPSN_DEFINE_HEADER( SipsnHeaderReferTo, sipsnHeaderReferTo, SIPSN_HEADER_REFER_TO, sipsn___PbsReferTo, shape )

SipsnHeaderReferTo *sipsnHeaderReferToCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return shape.Create( pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReferToIri( SipsnHeaderReferTo *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderReferToSetIri( SipsnHeaderReferTo **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnHeaderReferToDisplayName( SipsnHeaderReferTo *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderReferToHasDisplayName( SipsnHeaderReferTo *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderReferToDelDisplayName( SipsnHeaderReferTo **hdr ) { PB_DEL( hdr, displayName ); }
void      sipsnHeaderReferToSetDisplayName( SipsnHeaderReferTo **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

SipsnGenericParams *sipsnHeaderReferToGenericParams( SipsnHeaderReferTo *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderReferToSetGenericParams( SipsnHeaderReferTo **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
