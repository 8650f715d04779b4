// SipsnHeaderAcceptEncoding: the Accept-Encoding header field, RFC 3261 section 20.2.
#include "sipsn_header_accept_encoding.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( AcceptEncoding )

struct SipsnHeaderAcceptEncoding
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "acceptEncodings", &SipsnHeaderAcceptEncoding::items,
                                           sipsn___SkipAcceptEncoding, sipsn::schemaAcceptEncoding ) };
    }
};

SIPSN_DEFINE_NAME( AcceptEncoding, "Accept-Encoding" )

static constexpr sipsn::List< SipsnHeaderAcceptEncoding > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( AcceptEncoding, SIPSN_HEADER_ACCEPT_ENCODING, shape )
SIPSN_DEFINE_LIST( AcceptEncoding, AcceptEncodings, AcceptEncoding, SipsnAcceptEncoding, acceptEncoding,
                   sipsn___AcceptEncodingEncode )

SipsnHeaderAcceptEncoding *sipsnHeaderAcceptEncodingCreate( void ) { return shape.Create(); }
void sipsnHeaderAcceptEncodingClearAcceptEncodings( SipsnHeaderAcceptEncoding **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnAcceptEncoding *sipsnHeaderAcceptEncodingTryDecodeAcceptEncodingAt( SipsnHeaderAcceptEncoding *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___AcceptEncodingTryDecode );
}
