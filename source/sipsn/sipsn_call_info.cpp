// SipsnCallInfo: one info of Call-Info, RFC 3261 section 20.9.
#include "sipsn_call_info.h"

#include "sipsn_iri.h"
#include "sipsn_purpose.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor;

struct SipsnCallInfo
{
    PbObj               obj;
    PbString           *iri;
    PbString           *purpose;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnCallInfo::iri, &SipsnCallInfo::purpose, &SipsnCallInfo::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnCallInfo, sipsnCallInfo, SIPSN_CALL_INFO, callInfo, ci, sipsn___CallInfoEncode )

// Takes over the reference.
static SipsnCallInfo *CreateOwning( PbString *iri )
{
    SipsnCallInfo *callInfo = pb::New< SipsnCallInfo >();
    callInfo->iri           = iri;
    callInfo->genericParams = sipsnGenericParamsCreate();
    return callInfo;
}

SipsnCallInfo *sipsnCallInfoCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnCallInfoIri( SipsnCallInfo *callInfo ) { return PB_GET( callInfo, iri ); }
void      sipsnCallInfoSetIri( SipsnCallInfo **callInfo, PbString *iri )
{
    PB_SET( callInfo, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

PbString *sipsnCallInfoPurpose( SipsnCallInfo *callInfo ) { return PB_GET( callInfo, purpose ); }
bool      sipsnCallInfoHasPurpose( SipsnCallInfo *callInfo ) { return PB_HAS( callInfo, purpose ); }
void      sipsnCallInfoDelPurpose( SipsnCallInfo **callInfo ) { PB_DEL( callInfo, purpose ); }
void      sipsnCallInfoSetPurpose( SipsnCallInfo **callInfo, PbString *purpose )
{
    PB_SET( callInfo, purpose, purpose, sipsnPurposeNormalize( purpose ) );
}

SipsnGenericParams *sipsnCallInfoGenericParams( SipsnCallInfo *callInfo ) { return PB_GET( callInfo, genericParams ); }
void                sipsnCallInfoSetGenericParams( SipsnCallInfo **callInfo, SipsnGenericParams *genericParams )
{
    PB_SET( callInfo, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnCallInfo *callInfo )
{
    return sipsn::TakeText( in, "purpose", sipsn___SkipPurpose, callInfo->purpose, sipsn::LowerFromChars );
}

SipsnCallInfo *sipsn___CallInfoTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor    in{ chs, length };
    PbString *iri = sipsn::TryTakeBracketedIri( in );
    if( !iri ) return nullptr;

    pb::Ref    callInfo{ CreateOwning( iri ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, callInfo.Get() ); };
    return sipsn::TryDecodeParams( in, &callInfo->genericParams, takeTyped ) ? callInfo.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnCallInfo *callInfo )
{
    WriteNameAddr( out, nullptr, callInfo->iri );
    ParamWriter params{ out, callInfo->genericParams };
    params.Text( "purpose", callInfo->purpose );
    params.Generic();
}

PbString *sipsn___CallInfoEncode( SipsnCallInfo *callInfo )
{
    PB_ASSERT( callInfo );
    return sipsn::Encode( callInfo );
}
