// SipsnHeaderSupported: the Supported header field, RFC 3261 section 20.37.
#include "sipsn_header_supported.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderSupported
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "optionTags", &SipsnHeaderSupported::items, sipsn::rule::optionTag ) };
    }
};

SIPSN_DEFINE_NAME( Supported, "Supported" )

static constexpr sipsn::Set< SipsnHeaderSupported > shape{};

SIPSN_DEFINE_HEADER( Supported, SIPSN_HEADER_SUPPORTED, shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( Supported, OptionTags, OptionTag, optionTag, Key )

SipsnHeaderSupported *sipsnHeaderSupportedCreate( void ) { return shape.Create(); }

bool sipsnHeaderSupportedHasOptionTagCstr( SipsnHeaderSupported *hdr, const char *optionTag, int64_t optionTagLength )
{
    return sipsnHeaderSupportedHasOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

bool sipsnHeaderSupportedHasOptionTagWcstr( SipsnHeaderSupported *hdr, const wchar_t *optionTag,
                                            int64_t optionTagLength )
{
    return sipsnHeaderSupportedHasOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderSupportedSetOptionTagCstr( SipsnHeaderSupported **hdr, const char *optionTag, int64_t optionTagLength )
{
    sipsnHeaderSupportedSetOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderSupportedSetOptionTagWcstr( SipsnHeaderSupported **hdr, const wchar_t *optionTag,
                                            int64_t optionTagLength )
{
    sipsnHeaderSupportedSetOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderSupportedDelOptionTagCstr( SipsnHeaderSupported **hdr, const char *optionTag, int64_t optionTagLength )
{
    sipsnHeaderSupportedDelOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderSupportedDelOptionTagWcstr( SipsnHeaderSupported **hdr, const wchar_t *optionTag,
                                            int64_t optionTagLength )
{
    sipsnHeaderSupportedDelOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}
