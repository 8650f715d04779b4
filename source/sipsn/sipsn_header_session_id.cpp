// SipsnHeaderSessionId: the Session-ID header field, RFC 7989 section 5.
#include "sipsn_header_session_id.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnHeaderSessionId
{
    PbObj               obj;
    PbString           *localUuid;
    PbString           *remoteUuid;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderSessionId::localUuid, &SipsnHeaderSessionId::remoteUuid,
                                 &SipsnHeaderSessionId::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderSessionId, sipsn___PbsSessionId, "Session-Id" )

static SipsnHeaderSessionId *TryDecode( PbString *line );
static PbString             *EncodeLine( SipsnHeaderSessionId *hdr );

static constexpr sipsn::Single< SipsnHeaderSessionId > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderSessionId, sipsnHeaderSessionId, SIPSN_HEADER_SESSION_ID, sipsn___PbsSessionId, shape )

// Takes over the reference.
static SipsnHeaderSessionId *CreateOwning( PbString *localUuid )
{
    SipsnHeaderSessionId *hdr = pb::New< SipsnHeaderSessionId >();
    hdr->localUuid            = localUuid;
    hdr->genericParams        = sipsnGenericParamsCreate();
    return hdr;
}

SipsnHeaderSessionId *sipsnHeaderSessionIdCreate( PbString *sessUuid )
{
    PB_ASSERT( sipsnSessUuidOk( sessUuid ) );
    return CreateOwning( pb::Retain( sessUuid ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderSessionIdLocalUuid( SipsnHeaderSessionId *hdr ) { return PB_GET( hdr, localUuid ); }
void      sipsnHeaderSessionIdSetLocalUuid( SipsnHeaderSessionId **hdr, PbString *sessUuid )
{
    PB_SET( hdr, localUuid, sipsnSessUuidOk( sessUuid ), pb::Retain( sessUuid ) );
}

PbString *sipsnHeaderSessionIdRemoteUuid( SipsnHeaderSessionId *hdr ) { return PB_GET( hdr, remoteUuid ); }
bool      sipsnHeaderSessionIdHasRemoteUuid( SipsnHeaderSessionId *hdr ) { return PB_HAS( hdr, remoteUuid ); }
void      sipsnHeaderSessionIdDelRemoteUuid( SipsnHeaderSessionId **hdr ) { PB_DEL( hdr, remoteUuid ); }
void      sipsnHeaderSessionIdSetRemoteUuid( SipsnHeaderSessionId **hdr, PbString *sessUuid )
{
    PB_SET( hdr, remoteUuid, sipsnSessUuidOk( sessUuid ), pb::Retain( sessUuid ) );
}

SipsnGenericParams *sipsnHeaderSessionIdGenericParams( SipsnHeaderSessionId *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderSessionIdSetGenericParams( SipsnHeaderSessionId **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnHeaderSessionId *hdr )
{
    return sipsn::TakeText( in, "remote", sipsn___SkipSessUuid, hdr->remoteUuid );
}

static SipsnHeaderSessionId *TryDecode( PbString *line )
{
    Cursor     in{ line->chs, line->length };
    const Span uuid = in.Take( sipsn___SkipSessUuid );
    if( !uuid ) return nullptr;

    pb::Ref    hdr{ CreateOwning( uuid.ToString() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, hdr.Get() ); };
    return sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped, sipsn::Rest::isIgnored ) ? hdr.Detach()
                                                                                                : nullptr;
}

static PbString *EncodeLine( SipsnHeaderSessionId *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Text( hdr->localUuid );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Text( "remote", hdr->remoteUuid );
        params.Generic();
    } );
}
