// SipsnHeaderCseq: the CSeq header field, RFC 3261 section 20.16.
#include "sipsn_header_cseq.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderCseq
{
    PbObj     obj;
    int64_t   cseq;
    PbString *method;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "cseq", &SipsnHeaderCseq::cseq, sipsn::rule::cseq ),
            sipsn::Text( "method", &SipsnHeaderCseq::method, sipsn::rule::method ),
        };
    }
};

SIPSN_DEFINE_NAME( Cseq, "Cseq" )

static constexpr sipsn::LastLine< SipsnHeaderCseq, sipsn::Words< SipsnHeaderCseq > > shape{};

SIPSN_DEFINE_HEADER( Cseq, SIPSN_HEADER_CSEQ, shape )

SipsnHeaderCseq *sipsnHeaderCseqCreate( int64_t cseq, PbString *method )
{
    PB_ASSERT( sipsnCseqOk( cseq ) );
    PB_ASSERT( sipsnMethodOk( method ) );
    SipsnHeaderCseq *hdr = sipsn::NewWith( &SipsnHeaderCseq::method, pb::Retain( method ) );
    hdr->cseq            = cseq;
    return hdr;
}

// ---- Accessors -------------------------------------------------------------------------------------

int64_t sipsnHeaderCseqCseq( SipsnHeaderCseq *hdr ) { return PB_GET( hdr, cseq ); }
void sipsnHeaderCseqSetCseq( SipsnHeaderCseq **hdr, int64_t cseq ) { PB_SET( hdr, cseq, sipsnCseqOk( cseq ), cseq ); }

PbString *sipsnHeaderCseqMethod( SipsnHeaderCseq *hdr ) { return PB_GET( hdr, method ); }
void      sipsnHeaderCseqSetMethod( SipsnHeaderCseq **hdr, PbString *method )
{
    PB_SET( hdr, method, sipsnMethodOk( method ), pb::Retain( method ) );
}

void sipsnHeaderCseqSetMethodCstr( SipsnHeaderCseq **hdr, const char *method, int64_t methodLength )
{
    sipsnHeaderCseqSetMethod( hdr, StringFrom( method, methodLength ).Get() );
}

void sipsnHeaderCseqSetMethodWcstr( SipsnHeaderCseq **hdr, const wchar_t *method, int64_t methodLength )
{
    sipsnHeaderCseqSetMethod( hdr, StringFrom( method, methodLength ).Get() );
}
