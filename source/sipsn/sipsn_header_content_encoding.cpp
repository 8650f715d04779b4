// SipsnHeaderContentEncoding: the Content-Encoding header field, RFC 3261 section 20.12.
#include "sipsn_header_content_encoding.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderContentEncoding
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Items( "contentCodings", &SipsnHeaderContentEncoding::items, sipsn::rule::contentCoding ) };
    }
};

SIPSN_DEFINE_NAME( ContentEncoding, "Content-Encoding" )

static constexpr sipsn::List< SipsnHeaderContentEncoding > shape{ .noLines = sipsn::NoLines::givesEmptyHeader,
                                                                  .written = sipsn::Lines::joined };

// A caller's coding is kept as it is, unlike a decoded one.
static PbString *Stored( PbString *contentCoding )
{
    PB_ASSERT( sipsnContentCodingOk( contentCoding ) );
    return pb::Retain( contentCoding );
}

SIPSN_DEFINE_HEADER( ContentEncoding, SIPSN_HEADER_CONTENT_ENCODING, shape )
SIPSN_DEFINE_LIST( ContentEncoding, ContentCodings, ContentCoding, PbString, contentCoding, Stored )

SipsnHeaderContentEncoding *sipsnHeaderContentEncodingCreate( void ) { return shape.Create(); }

void sipsnHeaderContentEncodingClearContentCodings( SipsnHeaderContentEncoding **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

PbString *sipsnHeaderContentEncodingContentCodingAt( SipsnHeaderContentEncoding *hdr, int64_t index )
{
    return SIPSN_LIST_AT( hdr, index );
}

PbVector *sipsnHeaderContentEncodingContentCodingsVector( SipsnHeaderContentEncoding *hdr )
{
    return PB_GET( hdr, items );
}

void sipsnHeaderContentEncodingSetContentCodingsVector( SipsnHeaderContentEncoding **hdr, PbVector *vec )
{
    PB_ASSERT_SLOT( hdr );
    PB_ASSERT( vec );
    sipsnHeaderContentEncodingClearContentCodings( hdr );
    for( int64_t at = 0, length = pbVectorLength( vec ); at < length; ++at )
        sipsnHeaderContentEncodingAppendContentCoding( hdr,
                                                       pb::Ref{ pbObjToString( pb___VectorPeek( vec, at ) ) }.Get() );
}
