// SipsnHeaderRack: the RAck header field, RFC 3262 section 7.2.
#include "sipsn_header_rack.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderRack
{
    PbObj     obj;
    int64_t   responseNum;
    int64_t   cseq;
    PbString *method;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Int( "responseNum", &SipsnHeaderRack::responseNum, sipsn::rule::responseNum ),
            sipsn::Int( "cseq", &SipsnHeaderRack::cseq, sipsn::rule::cseq ),
            sipsn::Text( "method", &SipsnHeaderRack::method, sipsn::rule::method ),
        };
    }
};

SIPSN_DEFINE_NAME( Rack, "Rack" )

static constexpr sipsn::LastLine< SipsnHeaderRack, sipsn::Words< SipsnHeaderRack > > shape{};

SIPSN_DEFINE_HEADER( Rack, SIPSN_HEADER_RACK, shape )

SipsnHeaderRack *sipsnHeaderRackCreate( int64_t responseNum, int64_t cseq, PbString *method )
{
    PB_ASSERT( sipsnResponseNumOk( responseNum ) );
    PB_ASSERT( sipsnCseqOk( cseq ) );
    PB_ASSERT( sipsnMethodOk( method ) );
    SipsnHeaderRack *hdr = sipsn::NewWith( &SipsnHeaderRack::method, pb::Retain( method ) );
    hdr->responseNum     = responseNum;
    hdr->cseq            = cseq;
    return hdr;
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
