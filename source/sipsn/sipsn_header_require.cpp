// SipsnHeaderRequire: the Require header field, RFC 3261 section 20.32.
#include "sipsn_header_require.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderRequire
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "optionTags", &SipsnHeaderRequire::items, sipsn::rule::optionTag ) };
    }
};

SIPSN_DEFINE_NAME( Require, "Require" )

static constexpr sipsn::Set< SipsnHeaderRequire > shape{};

SIPSN_DEFINE_HEADER( Require, SIPSN_HEADER_REQUIRE, shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( Require, OptionTags, OptionTag, optionTag, Key )

SipsnHeaderRequire *sipsnHeaderRequireCreate( void ) { return shape.Create(); }

bool sipsnHeaderRequireHasOptionTagCstr( SipsnHeaderRequire *hdr, const char *optionTag, int64_t optionTagLength )
{
    return sipsnHeaderRequireHasOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

bool sipsnHeaderRequireHasOptionTagWcstr( SipsnHeaderRequire *hdr, const wchar_t *optionTag, int64_t optionTagLength )
{
    return sipsnHeaderRequireHasOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderRequireSetOptionTagCstr( SipsnHeaderRequire **hdr, const char *optionTag, int64_t optionTagLength )
{
    sipsnHeaderRequireSetOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderRequireSetOptionTagWcstr( SipsnHeaderRequire **hdr, const wchar_t *optionTag, int64_t optionTagLength )
{
    sipsnHeaderRequireSetOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderRequireDelOptionTagCstr( SipsnHeaderRequire **hdr, const char *optionTag, int64_t optionTagLength )
{
    sipsnHeaderRequireDelOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}

void sipsnHeaderRequireDelOptionTagWcstr( SipsnHeaderRequire **hdr, const wchar_t *optionTag, int64_t optionTagLength )
{
    sipsnHeaderRequireDelOptionTag( hdr, StringFrom( optionTag, optionTagLength ).Get() );
}
