// SipsnHeaderUnsupported: the Unsupported header field, RFC 3261 section 20.40.
#include "sipsn_header_unsupported.h"

#include "sipsn_header_frame.h"

struct SipsnHeaderUnsupported
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "optionTags", &SipsnHeaderUnsupported::items, sipsn::rule::optionTag ) };
    }
};

SIPSN_DEFINE_NAME( Unsupported, "Unsupported" )

static constexpr sipsn::Set< SipsnHeaderUnsupported > shape{};

SIPSN_DEFINE_HEADER( Unsupported, SIPSN_HEADER_UNSUPPORTED, shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( Unsupported, OptionTags, OptionTag, optionTag, Key )

SipsnHeaderUnsupported *sipsnHeaderUnsupportedCreate( void ) { return shape.Create(); }
