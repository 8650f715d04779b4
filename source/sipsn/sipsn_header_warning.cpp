// SipsnHeaderWarning: the Warning header field, RFC 3261 section 20.43.
#include "sipsn_header_warning.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( WarningValue )

struct SipsnHeaderWarning
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Values( "warnings", &SipsnHeaderWarning::items, sipsn___SkipWarningValue,
                                           sipsn::schemaWarningValue ) };
    }
};

SIPSN_DEFINE_NAME( Warning, "Warning" )

static constexpr sipsn::List< SipsnHeaderWarning > shape{ .noLines = sipsn::NoLines::givesEmptyHeader };

SIPSN_DEFINE_HEADER( Warning, SIPSN_HEADER_WARNING, shape )
SIPSN_DEFINE_LIST( Warning, Warnings, Warning, SipsnWarningValue, warningValue, sipsn___WarningValueEncode )

SipsnHeaderWarning *sipsnHeaderWarningCreate( void ) { return shape.Create(); }
void                sipsnHeaderWarningWarningsClear( SipsnHeaderWarning **hdr ) { SIPSN_LIST_CLEAR( hdr ); }

SipsnWarningValue *sipsnHeaderWarningTryDecodeWarningAt( SipsnHeaderWarning *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___WarningValueTryDecode );
}
