// SipsnErrorInfo: one error-uri of Error-Info, RFC 3261 section 20.18.
#include "sipsn_error_info.h"

#include "sipsn_iri.h"
#include "sipsn_skip_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor;

struct SipsnErrorInfo
{
    PbObj               obj;
    PbString           *iri;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnErrorInfo::iri, &SipsnErrorInfo::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnErrorInfo, sipsnErrorInfo, SIPSN_ERROR_INFO, errorInfo, ei, sipsn___ErrorInfoEncode )

// Takes over the reference.
static SipsnErrorInfo *CreateOwning( PbString *iri )
{
    SipsnErrorInfo *errorInfo = pb::New< SipsnErrorInfo >();
    errorInfo->iri            = iri;
    errorInfo->genericParams  = sipsnGenericParamsCreate();
    return errorInfo;
}

SipsnErrorInfo *sipsnErrorInfoCreate( PbString *iri )
{
    PB_ASSERT( sipsnIriOk( iri ) );
    return CreateOwning( pb::Retain( iri ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnErrorInfoIri( SipsnErrorInfo *errorInfo ) { return PB_GET( errorInfo, iri ); }
void      sipsnErrorInfoSetIri( SipsnErrorInfo **errorInfo, PbString *iri )
{
    PB_SET( errorInfo, iri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

SipsnGenericParams *sipsnErrorInfoGenericParams( SipsnErrorInfo *errorInfo )
{
    return PB_GET( errorInfo, genericParams );
}

void sipsnErrorInfoSetGenericParams( SipsnErrorInfo **errorInfo, SipsnGenericParams *genericParams )
{
    PB_SET( errorInfo, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

SipsnErrorInfo *sipsn___ErrorInfoTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor    in{ chs, length };
    PbString *iri = sipsn::TryTakeBracketedIri( in );
    if( !iri ) return nullptr;

    pb::Ref    errorInfo{ CreateOwning( iri ) };
    const auto noTyped = []( Cursor & ) { return false; };
    return sipsn::TryDecodeParams( in, &errorInfo->genericParams, noTyped ) ? errorInfo.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnErrorInfo *errorInfo )
{
    WriteNameAddr( out, nullptr, errorInfo->iri );
    ParamWriter{ out, errorInfo->genericParams }.Generic();
}

PbString *sipsn___ErrorInfoEncode( SipsnErrorInfo *errorInfo )
{
    PB_ASSERT( errorInfo );
    return sipsn::Encode( errorInfo );
}
