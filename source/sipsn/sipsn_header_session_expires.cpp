// SipsnHeaderSessionExpires: the Session-Expires header field, RFC 4028 section 4.
#include "sipsn_header_session_expires.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule refresher{ .words      = "a refresher",
                                     .ok         = sipsnRefresherOk,
                                     .production = sipsn___SkipRefresher,
                                     .decoded    = LowerFromChars,
                                     .normal     = ToLower };

} // namespace sipsn::rule

struct SipsnHeaderSessionExpires
{
    PbObj               obj;
    int64_t             deltaSeconds;
    PbString           *refresher;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "deltaSeconds", &SipsnHeaderSessionExpires::deltaSeconds, sipsn::rule::deltaSeconds ),
            sipsn::TextParam( "refresher", &SipsnHeaderSessionExpires::refresher, sipsn::rule::refresher ),
            sipsn::OtherParams( &SipsnHeaderSessionExpires::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( SessionExpires, "Session-Expires" )

static constexpr sipsn::LastLine< SipsnHeaderSessionExpires, sipsn::Params< SipsnHeaderSessionExpires > > shape{
    { .rest = sipsn::Rest::isIgnored } };

SIPSN_DEFINE_HEADER( SessionExpires, SIPSN_HEADER_SESSION_EXPIRES, shape )

SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    return sipsn::NewWith( &SipsnHeaderSessionExpires::deltaSeconds, deltaSeconds );
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderSessionExpiresDeltaSeconds( SipsnHeaderSessionExpires *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderSessionExpiresSetDeltaSeconds( SipsnHeaderSessionExpires **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

PbString *sipsnHeaderSessionExpiresRefresher( SipsnHeaderSessionExpires *hdr ) { return PB_GET( hdr, refresher ); }
bool      sipsnHeaderSessionExpiresHasRefresher( SipsnHeaderSessionExpires *hdr ) { return PB_HAS( hdr, refresher ); }
void      sipsnHeaderSessionExpiresSetRefresher( SipsnHeaderSessionExpires **hdr, PbString *refresher )
{
    PB_SET( hdr, refresher, sipsnRefresherOk( refresher ), sipsnRefresherNormalize( refresher ) );
}
void sipsnHeaderSessionExpiresDelRefresher( SipsnHeaderSessionExpires **hdr ) { PB_DEL( hdr, refresher ); }

SipsnGenericParams *sipsnHeaderSessionExpiresGenericParams( SipsnHeaderSessionExpires *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderSessionExpiresSetGenericParams( SipsnHeaderSessionExpires **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
