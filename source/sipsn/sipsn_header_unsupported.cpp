// SipsnHeaderUnsupported: the Unsupported header field, RFC 3261 section 20.40.
#include "sipsn_header_unsupported.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

struct SipsnHeaderUnsupported
{
    PbObj   obj;
    PbDict *items; // each to itself

    using Members = pb::Members< &SipsnHeaderUnsupported::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderUnsupported, sipsn___PbsUnsupported, "Unsupported" )

static constexpr sipsn::Set< SipsnHeaderUnsupported > shape{
    .items  = &SipsnHeaderUnsupported::items,
    .item   = sipsn___SkipOptionTag,
    .stored = sipsn::LowerFromChars,
};

SIPSN_DEFINE_HEADER( SipsnHeaderUnsupported, sipsnHeaderUnsupported, SIPSN_HEADER_UNSUPPORTED, sipsn___PbsUnsupported,
                     shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( SipsnHeaderUnsupported, sipsnHeaderUnsupported, OptionTags, OptionTag, optionTag, Key )

SipsnHeaderUnsupported *sipsnHeaderUnsupportedCreate( void ) { return shape.Create(); }
