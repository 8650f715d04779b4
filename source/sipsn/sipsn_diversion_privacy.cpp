// The privacy parameter of Diversion: what is valid, the lower-case form, and the wire form.
#include "sipsn_diversion_privacy.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDiversionPrivacyOk( PbString *diversionPrivacy )
{
    PB_ASSERT( diversionPrivacy );
    return sipsn::Matches( diversionPrivacy, sipsn___SkipDiversionPrivacy );
}

PbString *sipsnDiversionPrivacyNormalize( PbString *diversionPrivacy )
{
    PB_ASSERT( diversionPrivacy );
    return sipsn::ToLower( diversionPrivacy );
}

PbString *sipsn___DiversionPrivacyTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    if( sipsn::Matches( chs, length, sipsn___SkipToken ) ) return pbStringCreateFromCharsCopy( chs, length );
    return sipsn___QuotableStringTryDecode( chs, length );
}

PbString *sipsn___DiversionPrivacyEncode( PbString *diversionPrivacy )
{
    PB_ASSERT( diversionPrivacy );
    return sipsnTokenOk( diversionPrivacy ) ? pb::Retain( diversionPrivacy )
                                            : sipsn___QuotableStringEncode( diversionPrivacy );
}
