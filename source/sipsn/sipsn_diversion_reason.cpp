// The reason parameter of Diversion: what is valid, the lower-case form, and the wire form.
#include "sipsn_diversion_reason.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDiversionReasonOk( PbString *diversionReason )
{
    PB_ASSERT( diversionReason );
    return sipsn::Matches( diversionReason, sipsn___SkipDiversionReason );
}

PbString *sipsnDiversionReasonNormalize( PbString *diversionReason )
{
    PB_ASSERT( diversionReason );
    return sipsn::ToLower( diversionReason );
}

PbString *sipsn___DiversionReasonTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn___DiversionPrivacyTryDecode( chs, length );
}

PbString *sipsn___DiversionReasonEncode( PbString *diversionReason )
{
    PB_ASSERT( diversionReason );
    return sipsn___DiversionPrivacyEncode( diversionReason );
}
