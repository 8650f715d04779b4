// SipsnHeaderPrivacy: the Privacy header field, RFC 3323 section 4.2.
#include "sipsn_header_privacy.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderPrivacy
{
    PbObj   obj;
    PbDict *items; // each to itself

    using Members = pb::Members< &SipsnHeaderPrivacy::items >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderPrivacy, sipsn___PbsPrivacy, "Privacy" )

static constexpr sipsn::Set< SipsnHeaderPrivacy > shape{
    .items     = &SipsnHeaderPrivacy::items,
    .item      = sipsn___SkipPrivValue,
    .separator = sipsn::semicolon,
    .stored    = sipsn::LowerFromChars,
};

SIPSN_DEFINE_HEADER( SipsnHeaderPrivacy, sipsnHeaderPrivacy, SIPSN_HEADER_PRIVACY, sipsn___PbsPrivacy, shape )

static PbString *Key( PbString *privValue )
{
    PB_ASSERT( sipsnPrivValueOk( privValue ) );
    return sipsnPrivValueNormalize( privValue );
}
SIPSN_DEFINE_SET( SipsnHeaderPrivacy, sipsnHeaderPrivacy, PrivValues, PrivValue, privValue, Key )

SipsnHeaderPrivacy *sipsnHeaderPrivacyCreate( void ) { return shape.Create(); }

bool sipsnHeaderPrivacyHasPrivValueCstr( SipsnHeaderPrivacy *hdr, const char *privValue, int64_t privValueLength )
{
    return sipsnHeaderPrivacyHasPrivValue( hdr, StringFrom( privValue, privValueLength ).Get() );
}

bool sipsnHeaderPrivacyHasPrivValueWcstr( SipsnHeaderPrivacy *hdr, const wchar_t *privValue, int64_t privValueLength )
{
    return sipsnHeaderPrivacyHasPrivValue( hdr, StringFrom( privValue, privValueLength ).Get() );
}

void sipsnHeaderPrivacySetPrivValueCstr( SipsnHeaderPrivacy **hdr, const char *privValue, int64_t privValueLength )
{
    sipsnHeaderPrivacySetPrivValue( hdr, StringFrom( privValue, privValueLength ).Get() );
}

void sipsnHeaderPrivacySetPrivValueWcstr( SipsnHeaderPrivacy **hdr, const wchar_t *privValue, int64_t privValueLength )
{
    sipsnHeaderPrivacySetPrivValue( hdr, StringFrom( privValue, privValueLength ).Get() );
}

void sipsnHeaderPrivacyDelPrivValueCstr( SipsnHeaderPrivacy **hdr, const char *privValue, int64_t privValueLength )
{
    sipsnHeaderPrivacyDelPrivValue( hdr, StringFrom( privValue, privValueLength ).Get() );
}

void sipsnHeaderPrivacyDelPrivValueWcstr( SipsnHeaderPrivacy **hdr, const wchar_t *privValue, int64_t privValueLength )
{
    sipsnHeaderPrivacyDelPrivValue( hdr, StringFrom( privValue, privValueLength ).Get() );
}
