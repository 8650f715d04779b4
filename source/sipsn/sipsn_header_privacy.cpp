// SipsnHeaderPrivacy: the Privacy header field, RFC 3323 section 4.2.
#include "sipsn_header_privacy.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

namespace sipsn::rule {

static constexpr TextRule privValue{ .words      = "a privacy value",
                                     .ok         = sipsnPrivValueOk,
                                     .production = sipsn___SkipPrivValue,
                                     .decoded    = LowerFromChars,
                                     .normal     = ToLower };

} // namespace sipsn::rule

struct SipsnHeaderPrivacy
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "privValues", &SipsnHeaderPrivacy::items, sipsn::rule::privValue ) };
    }
};

SIPSN_DEFINE_NAME( Privacy, "Privacy" )

static constexpr sipsn::Set< SipsnHeaderPrivacy > shape{ .separator = sipsn::semicolon };

SIPSN_DEFINE_HEADER( Privacy, SIPSN_HEADER_PRIVACY, shape )

static PbString *Key( PbString *privValue )
{
    PB_ASSERT( sipsnPrivValueOk( privValue ) );
    return sipsnPrivValueNormalize( privValue );
}
SIPSN_DEFINE_SET( Privacy, PrivValues, PrivValue, privValue, Key )

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
