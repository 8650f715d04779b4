// SipsnHeaderMinSe: the Min-SE header field, RFC 4028 section 5.
#include "sipsn_header_min_se.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor;

struct SipsnHeaderMinSe
{
    PbObj               obj;
    int64_t             deltaSeconds;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnHeaderMinSe::deltaSeconds, &SipsnHeaderMinSe::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderMinSe, sipsn___PbsMinSe, "Min-Se" )

static SipsnHeaderMinSe *TryDecode( PbString *line );
static PbString         *EncodeLine( SipsnHeaderMinSe *hdr );

static constexpr sipsn::Single< SipsnHeaderMinSe > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderMinSe, sipsnHeaderMinSe, SIPSN_HEADER_MIN_SE, sipsn___PbsMinSe, shape )

SipsnHeaderMinSe *sipsnHeaderMinSeCreate( int64_t deltaSeconds )
{
    PB_ASSERT( sipsnDeltaSecondsOk( deltaSeconds ) );
    SipsnHeaderMinSe *hdr = pb::New< SipsnHeaderMinSe >();
    hdr->deltaSeconds     = deltaSeconds;
    hdr->genericParams    = sipsnGenericParamsCreate();
    return hdr;
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderMinSeDeltaSeconds( SipsnHeaderMinSe *hdr ) { return PB_GET( hdr, deltaSeconds ); }
void    sipsnHeaderMinSeSetDeltaSeconds( SipsnHeaderMinSe **hdr, int64_t deltaSeconds )
{
    PB_SET( hdr, deltaSeconds, sipsnDeltaSecondsOk( deltaSeconds ), deltaSeconds );
}

SipsnGenericParams *sipsnHeaderMinSeGenericParams( SipsnHeaderMinSe *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderMinSeSetGenericParams( SipsnHeaderMinSe **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static SipsnHeaderMinSe *TryDecode( PbString *line )
{
    Cursor        in{ line->chs, line->length };
    const int64_t deltaSeconds = sipsn::TakeDecimal( in );
    if( !sipsnDeltaSecondsOk( deltaSeconds ) ) return nullptr;

    pb::Ref    hdr{ sipsnHeaderMinSeCreate( deltaSeconds ) };
    const auto takeTyped = []( Cursor & ) { return false; };
    const bool good      = sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped, sipsn::Rest::isIgnored );
    return good ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderMinSe *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Int( hdr->deltaSeconds );
        sipsn::ParamWriter{ out, hdr->genericParams }.Generic();
    } );
}
