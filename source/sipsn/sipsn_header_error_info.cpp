// SipsnHeaderErrorInfo: the Error-Info header field, RFC 3261 section 20.18.
#include "sipsn_header_error_info.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderErrorInfo
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderErrorInfo::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderErrorInfo, sipsn___PbsErrorInfo, "Error-Info" )

static constexpr sipsn::List< SipsnHeaderErrorInfo > shape{
    .items   = &SipsnHeaderErrorInfo::items,
    .item    = sipsn___SkipErrorInfo,
    .noLines = sipsn::NoLines::givesNull,
};

SIPSN_DEFINE_HEADER( SipsnHeaderErrorInfo, sipsnHeaderErrorInfo, SIPSN_HEADER_ERROR_INFO, sipsn___PbsErrorInfo, shape )
SIPSN_DEFINE_LIST( SipsnHeaderErrorInfo, sipsnHeaderErrorInfo, ErrorInfos, ErrorInfo, SipsnErrorInfo, errorInfo,
                   sipsn___ErrorInfoEncode )

SipsnHeaderErrorInfo *sipsnHeaderErrorInfoCreate( void ) { return shape.Create(); }
void                  sipsnHeaderErrorInfoClearErrorInfos( SipsnHeaderErrorInfo **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnErrorInfo *sipsnHeaderErrorInfoTryDecodeErrorInfoAt( SipsnHeaderErrorInfo *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ErrorInfoTryDecode );
}
