// SipsnHeaderContentEncoding: the Content-Encoding header field, RFC 3261 section 20.12.
#include "sipsn_header_content_encoding.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

struct SipsnHeaderContentEncoding
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderContentEncoding::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderContentEncoding, sipsn___PbsContentEncoding, "Content-Encoding" )

static constexpr sipsn::List< SipsnHeaderContentEncoding > shape{
    .items   = &SipsnHeaderContentEncoding::items,
    .item    = sipsn___SkipContentCoding,
    .noLines = sipsn::NoLines::givesEmptyHeader,
    .lines   = sipsn::Lines::joined,
    .stored  = sipsn::LowerFromChars,
};

// A caller's coding is kept as it is, unlike a decoded one.
static PbString *Stored( PbString *contentCoding )
{
    PB_ASSERT( sipsnContentCodingOk( contentCoding ) );
    return pb::Retain( contentCoding );
}

SIPSN_DEFINE_HEADER( SipsnHeaderContentEncoding, sipsnHeaderContentEncoding, SIPSN_HEADER_CONTENT_ENCODING,
                     sipsn___PbsContentEncoding, shape )
SIPSN_DEFINE_LIST( SipsnHeaderContentEncoding, sipsnHeaderContentEncoding, ContentCodings, ContentCoding, PbString,
                   contentCoding, Stored )

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
