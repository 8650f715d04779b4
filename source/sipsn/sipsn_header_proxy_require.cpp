// SipsnHeaderProxyRequire: the Proxy-Require header field, RFC 3261 section 20.29.
#include "sipsn_header_proxy_require.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderProxyRequire
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "optionTags", &SipsnHeaderProxyRequire::items, sipsn::rule::optionTag ) };
    }
};

SIPSN_DEFINE_NAME( ProxyRequire, "Proxy-Require" )

static constexpr sipsn::Set< SipsnHeaderProxyRequire > shape{};

SIPSN_DEFINE_HEADER( ProxyRequire, SIPSN_HEADER_PROXY_REQUIRE, shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( ProxyRequire, OptionTags, OptionTag, optionTag, Key )

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
