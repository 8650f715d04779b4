// SipsnHeaderAcceptEncoding: the Accept-Encoding header field, RFC 3261 section 20.2.
#include "sipsn_header_accept_encoding.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderAcceptEncoding
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderAcceptEncoding::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderAcceptEncoding, sipsn___PbsAcceptEncoding, "Accept-Encoding" )

static constexpr sipsn::List< SipsnHeaderAcceptEncoding > shape{
    .items   = &SipsnHeaderAcceptEncoding::items,
    .item    = sipsn___SkipAcceptEncoding,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderAcceptEncoding, sipsnHeaderAcceptEncoding, SIPSN_HEADER_ACCEPT_ENCODING,
                     sipsn___PbsAcceptEncoding, shape )
SIPSN_DEFINE_LIST( SipsnHeaderAcceptEncoding, sipsnHeaderAcceptEncoding, AcceptEncodings, AcceptEncoding,
                   SipsnAcceptEncoding, acceptEncoding, sipsn___AcceptEncodingEncode )

SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingCreate( void ) { return shape.Create(); }
void sipsnHeaderAcceptEncodingClearAcceptEncodings( SipsnHeaderAcceptEncoding **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnAcceptEncoding *sipsnHeaderAcceptEncodingTryDecodeAcceptEncodingAt( SipsnHeaderAcceptEncoding *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___AcceptEncodingTryDecode );
}
