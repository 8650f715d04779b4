// SipsnHeaderReferredBy: the Referred-By header field, RFC 3892 section 3.
#include "sipsn_header_referred_by.h"

#include "sipsn_header_frame.h"
#include "sipsn_uri_member.h"

namespace sipsn::rule {

static constexpr TextRule cid{
    .words = "a Content-ID", .ok = sipsnSipCleanMsgIdOk, .production = sipsn___SkipSipCleanMsgId };

} // namespace sipsn::rule

struct SipsnHeaderReferredBy
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *cid;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "iri", &SipsnHeaderReferredBy::iri, sipsn::rule::iri ),
            sipsn::OptionalText( "displayName", &SipsnHeaderReferredBy::displayName, sipsn::rule::displayName ),
            sipsn::QuotedParam( "cid", &SipsnHeaderReferredBy::cid, sipsn::rule::cid ),
            sipsn::OtherParams( &SipsnHeaderReferredBy::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( ReferredBy, "Referred-By" )

static constexpr sipsn::LastLine< SipsnHeaderReferredBy, sipsn::Address< SipsnHeaderReferredBy > > shape{};

SIPSN_DEFINE_HEADER( ReferredBy, SIPSN_HEADER_REFERRED_BY, shape )

SipsnHeaderReferredBy *sipsnHeaderReferredByCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return sipsn::NewWith( &SipsnHeaderReferredBy::iri, pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReferredByIri( SipsnHeaderReferredBy *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderReferredBySetIri( SipsnHeaderReferredBy **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}
SIPSN_DEFINE_URI( HeaderReferredBy, hdr )

PbString *sipsnHeaderReferredByDisplayName( SipsnHeaderReferredBy *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderReferredByHasDisplayName( SipsnHeaderReferredBy *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderReferredBySetDisplayName( SipsnHeaderReferredBy **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}
void sipsnHeaderReferredByDelDisplayName( SipsnHeaderReferredBy **hdr ) { PB_DEL( hdr, displayName ); }

PbString *sipsnHeaderReferredByCid( SipsnHeaderReferredBy *hdr ) { return PB_GET( hdr, cid ); }
bool      sipsnHeaderReferredByHasCid( SipsnHeaderReferredBy *hdr ) { return PB_HAS( hdr, cid ); }
void      sipsnHeaderReferredBySetCid( SipsnHeaderReferredBy **hdr, PbString *cid )
{
    PB_SET( hdr, cid, sipsnSipCleanMsgIdOk( cid ), pb::Retain( cid ) );
}
void sipsnHeaderReferredByDelCid( SipsnHeaderReferredBy **hdr ) { PB_DEL( hdr, cid ); }

SipsnGenericParams *sipsnHeaderReferredByGenericParams( SipsnHeaderReferredBy *hdr )
{
    return PB_GET( hdr, genericParams );
}
void sipsnHeaderReferredBySetGenericParams( SipsnHeaderReferredBy **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
