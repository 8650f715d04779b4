// SipsnHeaderSessionExpires: the Session-Expires header field, RFC 4028 section 4.
#include "sipsn_header_session_expires.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor;

struct SipsnHeaderSessionExpires
{
    PbObj               obj;
    int64_t             deltaSeconds;
    PbString           *refresher;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderSessionExpires::deltaSeconds, &SipsnHeaderSessionExpires::refresher,
                                 &SipsnHeaderSessionExpires::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderSessionExpires, sipsn___PbsSessionExpires, "Session-Expires" )

static SipsnHeaderSessionExpires *TryDecode( PbString *line );
static PbString                  *EncodeLine( SipsnHeaderSessionExpires *hdr );

static constexpr sipsn::Single< SipsnHeaderSessionExpires > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderSessionExpires, sipsnHeaderSessionExpires, SIPSN_HEADER_SESSION_EXPIRES,
                     sipsn___PbsSessionExpires, shape )

SipsnHeaderSessionExpires *sipsnHeaderSessionExpiresCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    SipsnHeaderSessionExpires *hdr = pb::New< SipsnHeaderSessionExpires >();
    hdr->deltaSeconds              = deltaSeconds;
    hdr->genericParams             = sipsnGenericParamsCreate();
    return hdr;
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderSessionExpiresDeltaSeconds( SipsnHeaderSessionExpires *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderSessionExpiresSetDeltaSeconds( SipsnHeaderSessionExpires **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

PbString *sipsnHeaderSessionExpiresRefresher( SipsnHeaderSessionExpires *hdr ) { return PB_GET( hdr, refresher ); }
bool      sipsnHeaderSessionExpiresHasRefresher( SipsnHeaderSessionExpires *hdr ) { return PB_HAS( hdr, refresher ); }
void      sipsnHeaderSessionExpiresDelRefresher( SipsnHeaderSessionExpires **hdr ) { PB_DEL( hdr, refresher ); }
void      sipsnHeaderSessionExpiresSetRefresher( SipsnHeaderSessionExpires **hdr, PbString *refresher )
{
    PB_SET( hdr, refresher, sipsnRefresherOk( refresher ), sipsnRefresherNormalize( refresher ) );
}

SipsnGenericParams *sipsnHeaderSessionExpiresGenericParams( SipsnHeaderSessionExpires *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderSessionExpiresSetGenericParams( SipsnHeaderSessionExpires **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static SipsnHeaderSessionExpires *TryDecode( PbString *line )
{
    Cursor        in{ line->chs, line->length };
    const int64_t deltaSeconds = sipsn::TakeDecimal( in );
    if( !sipsnDeltaSecondsOk( deltaSeconds ) ) return nullptr;

    pb::Ref    hdr{ sipsnHeaderSessionExpiresCreate( deltaSeconds ) };
    const auto takeTyped = [ & ]( Cursor &at ) {
        return sipsn::TakeText( at, "refresher", sipsn___SkipRefresher, hdr->refresher, sipsn::LowerFromChars );
    };
    const bool good = sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped, sipsn::Rest::isIgnored );
    return good ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderSessionExpires *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Int( hdr->deltaSeconds );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Text( "refresher", hdr->refresher );
        params.Generic();
    } );
}
