// SipsnHeaderRequire: the Require header field, RFC 3261 section 20.32.
#include "sipsn_header_require.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderRequire
{
    PbObj   obj;
    PbDict *items; // each to itself

    using Members = pb::Members< &SipsnHeaderRequire::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderRequire, sipsn___PbsRequire, "Require" )

static constexpr sipsn::Set< SipsnHeaderRequire > shape{
    .items  = &SipsnHeaderRequire::items,
    .item   = sipsn___SkipOptionTag,
    .stored = sipsn::LowerFromChars,
};

SIPSN_DEFINE_HEADER( SipsnHeaderRequire, sipsnHeaderRequire, SIPSN_HEADER_REQUIRE, sipsn___PbsRequire, shape )

static PbString *Key( PbString *optionTag )
{
    PB_ASSERT( sipsnOptionTagOk( optionTag ) );
    return sipsnOptionTagNormalize( optionTag );
}
SIPSN_DEFINE_SET( SipsnHeaderRequire, sipsnHeaderRequire, OptionTags, OptionTag, optionTag, Key )

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
