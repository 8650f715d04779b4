// SipsnHeaderReferredBy: the Referred-By header field, RFC 3892 section 3.
#include "sipsn_header_referred_by.h"

#include "sipsn_header_address.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderReferredBy
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *cid;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderReferredBy::iri, &SipsnHeaderReferredBy::displayName,
                                 &SipsnHeaderReferredBy::cid, &SipsnHeaderReferredBy::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderReferredBy, sipsn___PbsReferredBy, "Referred-By" )

static bool TakeTypedParam( sipsn::Cursor &in, SipsnHeaderReferredBy *hdr )
{
    return sipsn::TakeQuoted( in, "cid", sipsn___SkipSipCleanMsgId, hdr->cid );
}

static void WriteTypedParams( sipsn::ParamWriter &params, SipsnHeaderReferredBy *hdr )
{
    params.Quoted( "cid", hdr->cid );
}

static constexpr sipsn::Address< SipsnHeaderReferredBy > shape{ .takeTyped  = TakeTypedParam,
                                                                .writeTyped = WriteTypedParams };

SIPSN_DEFINE_HEADER( SipsnHeaderReferredBy, sipsnHeaderReferredBy, SIPSN_HEADER_REFERRED_BY, sipsn___PbsReferredBy,
                     shape )

SipsnHeaderReferredBy *sipsnHeaderReferredByCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return shape.Create( pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReferredByIri( SipsnHeaderReferredBy *hdr ) { return PB_GET( hdr, iri ); }
void      sipsnHeaderReferredBySetIri( SipsnHeaderReferredBy **hdr, PbString *iri )
{
    PB_SET( hdr, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnHeaderReferredByDisplayName( SipsnHeaderReferredBy *hdr ) { return PB_GET( hdr, displayName ); }
bool      sipsnHeaderReferredByHasDisplayName( SipsnHeaderReferredBy *hdr ) { return PB_HAS( hdr, displayName ); }
void      sipsnHeaderReferredByDelDisplayName( SipsnHeaderReferredBy **hdr ) { PB_DEL( hdr, displayName ); }
void      sipsnHeaderReferredBySetDisplayName( SipsnHeaderReferredBy **hdr, PbString *displayName )
{
    PB_SET( hdr, displayName, sipsnDisplayNameOk( displayName ), pb::Retain( displayName ) );
}

PbString *sipsnHeaderReferredByCid( SipsnHeaderReferredBy *hdr ) { return PB_GET( hdr, cid ); }
bool      sipsnHeaderReferredByHasCid( SipsnHeaderReferredBy *hdr ) { return PB_HAS( hdr, cid ); }
void      sipsnHeaderReferredByDelCid( SipsnHeaderReferredBy **hdr ) { PB_DEL( hdr, cid ); }
void      sipsnHeaderReferredBySetCid( SipsnHeaderReferredBy **hdr, PbString *cid )
{
    PB_SET( hdr, cid, sipsnSipCleanMsgIdOk( cid ), pb::Retain( cid ) );
}

SipsnGenericParams *sipsnHeaderReferredByGenericParams( SipsnHeaderReferredBy *hdr )
{
    return PB_GET( hdr, genericParams );
}
void sipsnHeaderReferredBySetGenericParams( SipsnHeaderReferredBy **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
