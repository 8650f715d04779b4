// SipsnHeaderRseq: the RSeq header field, RFC 3262 section 7.1.
#include "sipsn_header_rseq.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderRseq
{
    PbObj   obj;
    int64_t responseNum;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "responseNum", &SipsnHeaderRseq::responseNum, sipsn::rule::responseNum ),
        };
    }
};

SIPSN_DEFINE_NAME( Rseq, "Rseq" )

static constexpr sipsn::LastLine< SipsnHeaderRseq, sipsn::Number< SipsnHeaderRseq > > shape{};

SIPSN_DEFINE_HEADER( Rseq, SIPSN_HEADER_RSEQ, shape )

SipsnHeaderRseq *sipsnHeaderRseqCreate( int64_t responseNum )
{
    PB_ASSERT( sipsnResponseNumOk( responseNum ) );
    return sipsn::NewWith( &SipsnHeaderRseq::responseNum, responseNum );
}

int64_t sipsnHeaderRseqResponseNum( SipsnHeaderRseq *hdr ) { return PB_GET( hdr, responseNum ); }
void    sipsnHeaderRseqSetResponseNum( SipsnHeaderRseq **hdr, int64_t responseNum )
{
    PB_SET( hdr, responseNum, sipsnResponseNumOk( responseNum ), responseNum );
}
