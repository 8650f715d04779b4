// SipsnHeaderSessionId: the Session-ID header field, RFC 7989 section 5.
#include "sipsn_header_session_id.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderSessionId
{
    PbObj               obj;
    PbString           *localUuid;
    PbString           *remoteUuid;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "localUuid", &SipsnHeaderSessionId::localUuid, sipsn::rule::sessUuid ),
            sipsn::TextParam( "remote", &SipsnHeaderSessionId::remoteUuid, sipsn::rule::sessUuid, "remoteUuid" ),
            sipsn::OtherParams( &SipsnHeaderSessionId::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( SessionId, "Session-Id" )

static constexpr sipsn::LastLine< SipsnHeaderSessionId, sipsn::Params< SipsnHeaderSessionId > > shape{
    { .rest = sipsn::Rest::isIgnored } };

SIPSN_DEFINE_HEADER( SessionId, SIPSN_HEADER_SESSION_ID, shape )

SipsnHeaderSessionId *sipsnHeaderSessionIdCreate( PbString *sessUuid )
{
    PB_ASSERT( sipsnSessUuidOk( sessUuid ) );
    return sipsn::NewWith( &SipsnHeaderSessionId::localUuid, pb::Retain( sessUuid ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderSessionIdLocalUuid( SipsnHeaderSessionId *hdr ) { return PB_GET( hdr, localUuid ); }
void      sipsnHeaderSessionIdSetLocalUuid( SipsnHeaderSessionId **hdr, PbString *sessUuid )
{
    PB_SET( hdr, localUuid, sipsnSessUuidOk( sessUuid ), pb::Retain( sessUuid ) );
}

PbString *sipsnHeaderSessionIdRemoteUuid( SipsnHeaderSessionId *hdr ) { return PB_GET( hdr, remoteUuid ); }
bool      sipsnHeaderSessionIdHasRemoteUuid( SipsnHeaderSessionId *hdr ) { return PB_HAS( hdr, remoteUuid ); }
void      sipsnHeaderSessionIdSetRemoteUuid( SipsnHeaderSessionId **hdr, PbString *sessUuid )
{
    PB_SET( hdr, remoteUuid, sipsnSessUuidOk( sessUuid ), pb::Retain( sessUuid ) );
}
void sipsnHeaderSessionIdDelRemoteUuid( SipsnHeaderSessionId **hdr ) { PB_DEL( hdr, remoteUuid ); }

SipsnGenericParams *sipsnHeaderSessionIdGenericParams( SipsnHeaderSessionId *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderSessionIdSetGenericParams( SipsnHeaderSessionId **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
