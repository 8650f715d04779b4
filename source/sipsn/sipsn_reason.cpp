// SipsnReason: one reason-value, RFC 3326 section 2.
#include "sipsn_reason.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnReason
{
    PbObj               obj;
    PbString           *protocol;
    PbString           *cause;
    PbString           *text;
    SipsnGenericParams *genericParams;

    using Members =
        pb::Members< &SipsnReason::protocol, &SipsnReason::cause, &SipsnReason::text, &SipsnReason::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnReason, sipsnReason, SIPSN_REASON, reason, reason, sipsn___ReasonEncode )

// Takes over the reference.
static SipsnReason *CreateOwning( PbString *protocol )
{
    SipsnReason *reason   = pb::New< SipsnReason >();
    reason->protocol      = protocol;
    reason->genericParams = sipsnGenericParamsCreate();
    return reason;
}

SipsnReason *sipsnReasonCreate( PbString *reasonProtocol )
{
    PB_ASSERT( sipsnReasonProtocolOk( reasonProtocol ) );
    return CreateOwning( pb::Retain( reasonProtocol ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnReasonProtocol( SipsnReason *reason ) { return PB_GET( reason, protocol ); }
void      sipsnReasonSetProtocol( SipsnReason **reason, PbString *reasonProtocol )
{
    PB_SET( reason, protocol, sipsnReasonProtocolOk( reasonProtocol ), pb::Retain( reasonProtocol ) );
}

PbString *sipsnReasonCause( SipsnReason *reason ) { return PB_GET( reason, cause ); }
bool      sipsnReasonHasCause( SipsnReason *reason ) { return PB_HAS( reason, cause ); }
void      sipsnReasonDelCause( SipsnReason **reason ) { PB_DEL( reason, cause ); }
void      sipsnReasonSetCause( SipsnReason **reason, PbString *reasonCause )
{
    PB_SET( reason, cause, sipsnReasonCauseOk( reasonCause ), pb::Retain( reasonCause ) );
}

PbString *sipsnReasonText( SipsnReason *reason ) { return PB_GET( reason, text ); }
bool      sipsnReasonHasText( SipsnReason *reason ) { return PB_HAS( reason, text ); }
void      sipsnReasonDelText( SipsnReason **reason ) { PB_DEL( reason, text ); }
void      sipsnReasonSetText( SipsnReason **reason, PbString *reasonText )
{
    PB_SET( reason, text, sipsnReasonTextOk( reasonText ), pb::Retain( reasonText ) );
}

SipsnGenericParams *sipsnReasonGenericParams( SipsnReason *reason ) { return PB_GET( reason, genericParams ); }
void                sipsnReasonSetGenericParams( SipsnReason **reason, SipsnGenericParams *genericParams )
{
    PB_SET( reason, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

// A cause or a text whose value does not fit its member is a generic parameter.
static bool TakeTypedParam( Cursor &in, SipsnReason *reason )
{
    if( sipsn::TakeText( in, "cause", sipsn___SkipDigits, reason->cause ) ) return true;
    if( Span quoted = in.Param( "text", sipsn___SkipQuotedString ) ) {
        pb::Set( reason->text, sipsn::Unquote( quoted.chs, quoted.length ) );
        PB_ABORT_UNLESS( nullptr, "(*reason)->text", reason->text );
        return true;
    }
    return false;
}

SipsnReason *sipsn___ReasonTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor in{ chs, length };
    Span   protocol = in.Take( sipsn___SkipReasonProtocol );
    if( !protocol ) return nullptr;

    pb::Ref    reason{ CreateOwning( protocol.ToString() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, reason.Get() ); };
    return sipsn::TryDecodeParams( in, &reason->genericParams, takeTyped ) ? reason.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnReason *reason )
{
    out.Text( reason->protocol );
    ParamWriter params{ out, reason->genericParams };
    params.Text( "cause", reason->cause );
    if( reason->text ) params.Owned( "text", sipsn___QuotableStringEncode( reason->text ) );
    params.Generic();
}

PbString *sipsn___ReasonEncode( SipsnReason *reason )
{
    PB_ASSERT( reason );
    return sipsn::Encode( reason );
}
