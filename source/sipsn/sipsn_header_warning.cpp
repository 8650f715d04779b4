// SipsnHeaderWarning: the Warning header field, RFC 3261 section 20.43.
#include "sipsn_header_warning.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

struct SipsnHeaderWarning
{
    PbObj     obj;
    PbVector *items;

    using Members = pb::Members< &SipsnHeaderWarning::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderWarning, sipsn___PbsWarning, "Warning" )

static constexpr sipsn::List< SipsnHeaderWarning > shape{
    .items   = &SipsnHeaderWarning::items,
    .item    = sipsn___SkipWarningValue,
    .noLines = sipsn::NoLines::givesEmptyHeader,
};

SIPSN_DEFINE_HEADER( SipsnHeaderWarning, sipsnHeaderWarning, SIPSN_HEADER_WARNING, sipsn___PbsWarning, shape )
SIPSN_DEFINE_LIST( SipsnHeaderWarning, sipsnHeaderWarning, Warnings, Warning, SipsnWarningValue, warningValue,
                   sipsn___WarningValueEncode )

SipsnHeaderWarning *sipsnHeaderWarningCreate( void ) { return shape.Create(); }
void                sipsnHeaderWarningWarningsClear( SipsnHeaderWarning **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnWarningValue *sipsnHeaderWarningTryDecodeWarningAt( SipsnHeaderWarning *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___WarningValueTryDecode );
}
