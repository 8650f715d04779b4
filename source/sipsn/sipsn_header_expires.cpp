// SipsnHeaderExpires: the Expires header field, RFC 3261 section 20.19.
#include "sipsn_header_expires.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_token_internal.h"

struct SipsnHeaderExpires
{
    PbObj   obj;
    int64_t deltaSeconds;

    using Members = pb::Members< &SipsnHeaderExpires::deltaSeconds >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderExpires, sipsn___PbsExpires, "Expires" )

static SipsnHeaderExpires *TryDecode( PbString *line );
static PbString           *EncodeLine( SipsnHeaderExpires *hdr );

static constexpr sipsn::Single< SipsnHeaderExpires > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderExpires, sipsnHeaderExpires, SIPSN_HEADER_EXPIRES, sipsn___PbsExpires, shape )

SipsnHeaderExpires *sipsnHeaderExpiresCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    SipsnHeaderExpires *hdr = pb::New< SipsnHeaderExpires >();
    hdr->deltaSeconds       = deltaSeconds;
    return hdr;
}

int64_t sipsnHeaderExpiresDeltaSeconds( SipsnHeaderExpires *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderExpiresSetDeltaSeconds( SipsnHeaderExpires **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

static SipsnHeaderExpires *TryDecode( PbString *line )
{
    const int64_t deltaSeconds = sipsn___DeltaSecondsTryDecode( line->chs, line->length );
    return sipsnDeltaSecondsOk( deltaSeconds ) ? sipsnHeaderExpiresCreate( deltaSeconds ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderExpires *hdr ) { return sipsn___DeltaSecondsEncode( hdr->deltaSeconds ); }
