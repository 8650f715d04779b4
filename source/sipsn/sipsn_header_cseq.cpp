// SipsnHeaderCseq: the CSeq header field, RFC 3261 section 20.16.
#include "sipsn_header_cseq.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor, sipsn::Span, sipsn::StringFrom;

struct SipsnHeaderCseq
{
    PbObj     obj;
    int64_t   cseq;
    PbString *method;

    using Members = pb::Members< &SipsnHeaderCseq::cseq, &SipsnHeaderCseq::method >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderCseq, sipsn___PbsCseq, "Cseq" )

static SipsnHeaderCseq *TryDecode( PbString *line );
static PbString        *EncodeLine( SipsnHeaderCseq *hdr );

static constexpr sipsn::Single< SipsnHeaderCseq > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderCseq, sipsnHeaderCseq, SIPSN_HEADER_CSEQ, sipsn___PbsCseq, shape )

// Takes over the reference.
static SipsnHeaderCseq *CreateOwning( int64_t cseq, PbString *method )
{
    SipsnHeaderCseq *hdr = pb::New< SipsnHeaderCseq >();
    hdr->cseq            = cseq;
    hdr->method          = method;
    return hdr;
}

SipsnHeaderCseq *sipsnHeaderCseqCreate( int64_t cseq, PbString *method )
{
    PB_ASSERT( sipsnCseqOk( cseq ) );
    PB_ASSERT( sipsnMethodOk( method ) );
    return CreateOwning( cseq, pb::Retain( method ) );
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

// ---- Text form -------------------------------------------------------------------------------------

static SipsnHeaderCseq *TryDecode( PbString *line )
{
    Cursor        in{ line->chs, line->length };
    const int64_t cseq = sipsn::TakeDecimal( in );
    if( !sipsnCseqOk( cseq ) || !in.Take( sipsn___SkipLws ) ) return nullptr;
    const Span method = in.Take( sipsn___SkipMethod );
    return method && in.AtEnd() ? CreateOwning( cseq, method.ToString() ) : nullptr;
}

static PbString *EncodeLine( SipsnHeaderCseq *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Int( hdr->cseq );
        out.Char( ' ' );
        out.Text( hdr->method );
    } );
}
