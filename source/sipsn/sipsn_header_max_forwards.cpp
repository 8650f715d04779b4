// SipsnHeaderMaxForwards: the Max-Forwards header field, RFC 3261 section 20.22.
#include "sipsn_header_max_forwards.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"

struct SipsnHeaderMaxForwards
{
    PbObj   obj;
    int64_t maxForwards;

    using Members = pb::Members< &SipsnHeaderMaxForwards::maxForwards >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderMaxForwards, sipsn___PbsMaxForwards, "Max-Forwards" )

static SipsnHeaderMaxForwards *TryDecode( PbString *line );
static PbString               *EncodeLine( SipsnHeaderMaxForwards *hdr );

static constexpr sipsn::Single< SipsnHeaderMaxForwards > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderMaxForwards, sipsnHeaderMaxForwards, SIPSN_HEADER_MAX_FORWARDS, sipsn___PbsMaxForwards,
                     shape )

SipsnHeaderMaxForwards *sipsnHeaderMaxForwardsCreate( int64_t maxForwards )
{
    PB_ASSERT( sipsnMaxForwardsOk( maxForwards ) );
    SipsnHeaderMaxForwards *hdr = pb::New< SipsnHeaderMaxForwards >();
    hdr->maxForwards            = maxForwards;
    return hdr;
}

int64_t sipsnHeaderMaxForwardsMaxForwards( SipsnHeaderMaxForwards *hdr ) { return PB_GET( hdr, maxForwards ); }
void    sipsnHeaderMaxForwardsSetMaxForwards( SipsnHeaderMaxForwards **hdr, int64_t maxForwards )
{
    PB_SET( hdr, maxForwards, sipsnMaxForwardsOk( maxForwards ), maxForwards );
}

static SipsnHeaderMaxForwards *TryDecode( PbString *line )
{
    int64_t maxForwards = -1;
    int64_t charsRead   = 0;
    if( !pbStringScanInt( line, 0, -1, 10, &maxForwards, &charsRead ) || charsRead != line->length ) return nullptr;
    return sipsnMaxForwardsOk( maxForwards ) ? sipsnHeaderMaxForwardsCreate( maxForwards ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderMaxForwards *hdr ) { return pbFormatEncodeInt( hdr->maxForwards, 10, 0, 0 ); }
