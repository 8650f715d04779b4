// SipsnHeaderErrorInfo: the Error-Info header field, RFC 3261 section 20.18.
#include "sipsn_header_error_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( ErrorInfo )

struct SipsnHeaderErrorInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "errorInfos", &SipsnHeaderErrorInfo::items, sipsn___SkipErrorInfo,
                                           sipsn::schemaErrorInfo ) };
    }
};

SIPSN_DEFINE_NAME( ErrorInfo, "Error-Info" )

static constexpr sipsn::List< SipsnHeaderErrorInfo > shape{ .noLines = sipsn::NoLines::givesNull };

SIPSN_DEFINE_HEADER( ErrorInfo, SIPSN_HEADER_ERROR_INFO, shape )
SIPSN_DEFINE_LIST( ErrorInfo, ErrorInfos, ErrorInfo, SipsnErrorInfo, errorInfo, sipsn___ErrorInfoEncode )

SipsnHeaderErrorInfo *sipsnHeaderErrorInfoCreate( void ) { return shape.Create(); }
void                  sipsnHeaderErrorInfoClearErrorInfos( SipsnHeaderErrorInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnErrorInfo *sipsnHeaderErrorInfoTryDecodeErrorInfoAt( SipsnHeaderErrorInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ErrorInfoTryDecode );
}
