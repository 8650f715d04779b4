// SipsnHeaderMinExpires: the Min-Expires header field, RFC 3261 section 20.23.
#include "sipsn_header_min_expires.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_token_internal.h"

struct SipsnHeaderMinExpires
{
    PbObj   obj;
    int64_t deltaSeconds;

    using Members = pb::Members< &SipsnHeaderMinExpires::deltaSeconds >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderMinExpires, sipsn___PbsMinExpires, "Min-Expires" )

static SipsnHeaderMinExpires *TryDecode( PbString *line );
static PbString              *EncodeLine( SipsnHeaderMinExpires *hdr );

static constexpr sipsn::Single< SipsnHeaderMinExpires > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderMinExpires, sipsnHeaderMinExpires, SIPSN_HEADER_MIN_EXPIRES, sipsn___PbsMinExpires,
                     shape )

SipsnHeaderMinExpires *sipsnHeaderMinExpiresCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    SipsnHeaderMinExpires *hdr = pb::New< SipsnHeaderMinExpires >();
    hdr->deltaSeconds          = deltaSeconds;
    return hdr;
}

int64_t sipsnHeaderMinExpiresDeltaSeconds( SipsnHeaderMinExpires *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderMinExpiresSetDeltaSeconds( SipsnHeaderMinExpires **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

static SipsnHeaderMinExpires *TryDecode( PbString *line )
{
    const int64_t deltaSeconds = sipsn___DeltaSecondsTryDecode( line->chs, line->length );
    return sipsnDeltaSecondsOk( deltaSeconds ) ? sipsnHeaderMinExpiresCreate( deltaSeconds ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderMinExpires *hdr ) { return sipsn___DeltaSecondsEncode( hdr->deltaSeconds ); }
