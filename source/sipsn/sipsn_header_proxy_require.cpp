// SipsnHeaderProxyRequire: the Proxy-Require header field, RFC 3261 section 20.29.
#include "sipsn_header_proxy_require.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderProxyRequire
{
    PbObj   obj;
    PbDict *items; // each to itself

    using Members = pb::Members< &SipsnHeaderProxyRequire::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderProxyRequire, sipsn___PbsProxyRequire, "Proxy-Require" )

static constexpr sipsn::Set< SipsnHeaderProxyRequire > shape{
    .items  = &SipsnHeaderProxyRequire::items,
    .item   = sipsn___SkipOptionTag,
    .stored = sipsn::LowerFromChars,
};

SIPSN_DEFINE_HEADER( SipsnHeaderProxyRequire, sipsnHeaderProxyRequire, SIPSN_HEADER_PROXY_REQUIRE,
                     sipsn___PbsProxyRequire, shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( SipsnHeaderProxyRequire, sipsnHeaderProxyRequire, OptionTags, OptionTag, optionTag, Key )

SipsnHeaderProxyRequire *sipsnHeaderProxyRequireCreate( void ) { return shape.Create(); }

bool sipsnHeaderProxyRequireHasOptionTagCstr( SipsnHeaderProxyRequire *hdr, const char *optionTag,
                                              int64_t optionTagLength )
{
    return sipsnHeaderProxyRequireHasOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

bool sipsnHeaderProxyRequireHasOptionTagWcstr( SipsnHeaderProxyRequire *hdr, const wchar_t *optionTag,
                                               int64_t optionTagLength )
{
    return sipsnHeaderProxyRequireHasOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderProxyRequireSetOptionTagCstr( SipsnHeaderProxyRequire **hdr, const char *optionTag,
                                              int64_t optionTagLength )
{
    sipsnHeaderProxyRequireSetOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderProxyRequireSetOptionTagWcstr( SipsnHeaderProxyRequire **hdr, const wchar_t *optionTag,
                                               int64_t optionTagLength )
{
    sipsnHeaderProxyRequireSetOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderProxyRequireDelOptionTagCstr( SipsnHeaderProxyRequire **hdr, const char *optionTag,
                                              int64_t optionTagLength )
{
    sipsnHeaderProxyRequireDelOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderProxyRequireDelOptionTagWcstr( SipsnHeaderProxyRequire **hdr, const wchar_t *optionTag,
                                               int64_t optionTagLength )
{
    sipsnHeaderProxyRequireDelOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}
