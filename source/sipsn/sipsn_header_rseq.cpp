// SipsnHeaderRseq: the RSeq header field, RFC 3262 section 7.1.
#include "sipsn_header_rseq.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor;

struct SipsnHeaderRseq
{
    PbObj   obj;
    int64_t responseNum;

    using Members = pb::Members< &SipsnHeaderRseq::responseNum >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderRseq, sipsn___PbsRseq, "Rseq" )

static SipsnHeaderRseq *TryDecode( PbString *line );
static PbString        *EncodeLine( SipsnHeaderRseq *hdr );

static constexpr sipsn::Single< SipsnHeaderRseq > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderRseq, sipsnHeaderRseq, SIPSN_HEADER_RSEQ, sipsn___PbsRseq, shape )

SipsnHeaderRseq *sipsnHeaderRseqCreate( int64_t responseNum )
{
    PB_ASSERT( sipsnResponseNumOk( responseNum ) );
    SipsnHeaderRseq *hdr = pb::New< SipsnHeaderRseq >();
    hdr->responseNum     = responseNum;
    return hdr;
}

int64_t sipsnHeaderRseqResponseNum( SipsnHeaderRseq *hdr ) { return PB_GET( hdr, responseNum ); }
void    sipsnHeaderRseqSetResponseNum( SipsnHeaderRseq **hdr, int64_t responseNum )
{
    PB_SET( hdr, responseNum, sipsnResponseNumOk( responseNum ), responseNum );
}

static SipsnHeaderRseq *TryDecode( PbString *line )
{
    Cursor        in{ line->chs, line->length };
    const int64_t responseNum = sipsn::TakeDecimal( in );
    return sipsnResponseNumOk( responseNum ) && in.AtEnd() ? sipsnHeaderRseqCreate( responseNum ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderRseq *hdr ) { return pbFormatEncodeInt( hdr->responseNum, 10, 0, 0 ); }
