// SipsnHeaderReferTo: the Refer-To header field, RFC 3515 section 2.1.
#include "sipsn_header_refer_to.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

struct SipsnHeaderReferTo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderReferTo::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderReferTo::displayName, sipsn::rule::displayName ),
            sipsn::OtherParams( &SipsnHeaderReferTo::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( ReferTo, "Refer-To" )

// A bare URI behind which something other than parameters stands is read as far as any URI goes.
static constexpr sipsn::LastLine< SipsnHeaderReferTo, sipsn::Address< SipsnHeaderReferTo > > shape{
    { .bareAgain = sipsn___SkipUri } };

SIPSN_DEFINE_HEADER( ReferTo, SIPSN_HEADER_REFER_TO, shape )

SipsnHeaderReferTo *sipsnHeaderReferToCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnHeaderReferTo::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReferToIri( SipsnHeaderReferTo *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderReferToSetIri( SipsnHeaderReferTo **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderReferTo, hdr )

PbString *sipsnHeaderReferToDisplayName( SipsnHeaderReferTo *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderReferToHasDisplayName( SipsnHeaderReferTo *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderReferToSetDisplayName( SipsnHeaderReferTo **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderReferToDelDisplayName( SipsnHeaderReferTo **hdr ) { PB_DEL( hdr, displayName ); }

SipsnGenericParams *sipsnHeaderReferToGenericParams( SipsnHeaderReferTo *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderReferToSetGenericParams( SipsnHeaderReferTo **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
