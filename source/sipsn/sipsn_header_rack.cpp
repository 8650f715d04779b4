// SipsnHeaderRack: the RAck header field, RFC 3262 section 7.2.
#include "sipsn_header_rack.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnHeaderRack
{
    PbObj     obj;
    int64_t   responseNum;
    int64_t   cseq;
    PbString *method;

    using Members = pb::Members< &SipsnHeaderRack::responseNum, &SipsnHeaderRack::cseq, &SipsnHeaderRack::method >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderRack, sipsn___PbsRack, "Rack" )

static SipsnHeaderRack *TryDecode( PbString *line );
static PbString        *EncodeLine( SipsnHeaderRack *hdr );

static constexpr sipsn::Single< SipsnHeaderRack > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderRack, sipsnHeaderRack, SIPSN_HEADER_RACK, sipsn___PbsRack, shape )

// Takes over the reference.
static SipsnHeaderRack *CreateOwning( int64_t responseNum, int64_t cseq, PbString *method )
{
    SipsnHeaderRack *hdr = pb::New< SipsnHeaderRack >();
    hdr->responseNum     = responseNum;
    hdr->cseq            = cseq;
    hdr->method          = method;
    return hdr;
}

SipsnHeaderRack *sipsnHeaderRackCreate( int64_t responseNum, int64_t cseq, PbString *method )
{
    PB_ASSERT( sipsnResponseNumOk( responseNum ) );
    PB_ASSERT( sipsnCseqOk( cseq ) );
    PB_ASSERT( sipsnMethodOk( method ) );
    return CreateOwning( responseNum, cseq, pb::Retain( method ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderRackResponseNum( SipsnHeaderRack *hdr ) { return PB_GET( hdr, responseNum ); }
void    sipsnHeaderRackSetResponseNum( SipsnHeaderRack **hdr, int64_t responseNum )
{
    PB_SET( hdr, responseNum, sipsnResponseNumOk( responseNum ), responseNum );
}

int64_t sipsnHeaderRackCseq( SipsnHeaderRack *hdr ) { return PB_GET( hdr, cseq ); }
void sipsnHeaderRackSetCseq( SipsnHeaderRack **hdr, int64_t cseq ) { PB_SET( hdr, cseq, sipsnCseqOk( cseq ), cseq ); }

PbString *sipsnHeaderRackMethod( SipsnHeaderRack *hdr ) { return PB_GET( hdr, method ); }
void      sipsnHeaderRackSetMethod( SipsnHeaderRack **hdr, PbString *method )
{
    PB_SET( hdr, method, sipsnMethodOk( method ), pb::Retain( method ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static SipsnHeaderRack *TryDecode( PbString *line )
{
    Cursor        in{ line->chs, line->length };
    const int64_t responseNum = sipsn::TakeDecimal( in );
    if( !sipsnResponseNumOk( responseNum ) || !in.Take( sipsn___SkipLws ) ) return nullptr;
    const int64_t cseq = sipsn::TakeDecimal( in );
    if( !sipsnCseqOk( cseq ) || !in.Take( sipsn___SkipLws ) ) return nullptr;
    const Span method = in.Take( sipsn___SkipMethod );
    return method && in.AtEnd() ? CreateOwning( responseNum, cseq, method.ToString() ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderRack *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Int( hdr->responseNum );
        out.Char( ' ' );
        out.Int( hdr->cseq );
        out.Char( ' ' );
        out.Text( hdr->method );
    } );
}
