// SipsnAccept: one accept-range, RFC 3261 section 20.1.
#include "sipsn_accept.h"

#include "sipsn_media_subtype.h"
#include "sipsn_media_type.h"
#include "sipsn_qvalue.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnAccept
{
    PbObj               obj;
    PbString           *mediaType;    // null: any
    PbString           *mediaSubtype; // null: any
    SipsnGenericParams *genericParams;
    int64_t             q;

    using Members      = pb::Members< &SipsnAccept::mediaType, &SipsnAccept::mediaSubtype, &SipsnAccept::genericParams,
                                 &SipsnAccept::q >;
    using CompareOrder = pb::Members< &SipsnAccept::mediaType, &SipsnAccept::mediaSubtype, &SipsnAccept::q,
                                      &SipsnAccept::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnAccept, sipsnAccept, SIPSN_ACCEPT, accept, accept, sipsn___AcceptEncode )

SipsnAccept *sipsnAcceptCreate( void )
{
    SipsnAccept *accept   = pb::New< SipsnAccept >();
    accept->genericParams = sipsnGenericParamsCreate();
    return accept;
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnAcceptMediaType( SipsnAccept *accept ) { return PB_GET( accept, mediaType ); }
bool      sipsnAcceptHasMediaType( SipsnAccept *accept ) { return PB_HAS( accept, mediaType ); }
void      sipsnAcceptDelMediaType( SipsnAccept **accept ) { PB_DEL( accept, mediaType ); }
void      sipsnAcceptSetMediaType( SipsnAccept **accept, PbString *mediaType )
{
    PB_SET( accept, mediaType, mediaType, sipsnMediaTypeNormalize( mediaType ) );
}

PbString *sipsnAcceptMediaSubtype( SipsnAccept *accept ) { return PB_GET( accept, mediaSubtype ); }
bool      sipsnAcceptHasMediaSubtype( SipsnAccept *accept ) { return PB_HAS( accept, mediaSubtype ); }
void      sipsnAcceptDelMediaSubtype( SipsnAccept **accept ) { PB_DEL( accept, mediaSubtype ); }
void      sipsnAcceptSetMediaSubtype( SipsnAccept **accept, PbString *mediaSubtype )
{
    PB_SET( accept, mediaSubtype, mediaSubtype, sipsnMediaSubtypeNormalize( mediaSubtype ) );
}

SipsnGenericParams *sipsnAcceptGenericParams( SipsnAccept *accept ) { return PB_GET( accept, genericParams ); }
void                sipsnAcceptSetGenericParams( SipsnAccept **accept, SipsnGenericParams *genericParams )
{
    PB_SET( accept, genericParams, genericParams, pb::Retain( genericParams ) );
}

int64_t sipsnAcceptQvalue( SipsnAccept *accept ) { return PB_GET( accept, q ); }
bool    sipsnAcceptHasQvalue( SipsnAccept *accept ) { return PB_HAS( accept, q ); }
void    sipsnAcceptDelQvalue( SipsnAccept **accept ) { PB_DEL( accept, q ); }
void    sipsnAcceptSetQvalue( SipsnAccept **accept, int64_t qvalue )
{
    PB_SET( accept, q, sipsnQvalueOk( qvalue ), qvalue );
}

// ---- Text form -------------------------------------------------------------------------------------

// A name in lower case, or "*", which leaves it null. False when neither is there.
static bool TryTakeName( Cursor &in, sipsn::Production *production, PbString *&name )
{
    if( Span text = in.Take( production ) ) {
        name = sipsn::LowerFromChars( text.chs, text.length );
        return true;
    }
    return bool( in.Take( PbChar{ '*' } ) );
}

static bool TakeTypedParam( Cursor &in, SipsnAccept *accept )
{
    Span text = in.Param( "q", sipsn___SkipQvalue );
    if( !text ) return false;
    accept->q = sipsn___QvalueTryDecode( text.chs, text.length );
    PB_ASSERT( sipsnQvalueOk( accept->q ) );
    return true;
}

SipsnAccept *sipsn___AcceptTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor  in{ chs, length };
    pb::Ref accept{ sipsnAcceptCreate() };
    if( !TryTakeName( in, sipsn___SkipMediaType, accept->mediaType ) || !in.Take( sipsn___SkipSlash ) ||
        !TryTakeName( in, sipsn___SkipMediaSubtype, accept->mediaSubtype ) )
        return nullptr;
    if( accept->mediaSubtype && !accept->mediaType ) return nullptr;
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, accept.Get() ); };
    return sipsn::TryDecodeParams( in, &accept->genericParams, takeTyped ) ? accept.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnAccept *accept )
{
    if( accept->mediaType )
        out.Text( accept->mediaType );
    else
        out.Char( '*' );
    out.Char( '/' );
    if( accept->mediaType && accept->mediaSubtype )
        out.Text( accept->mediaSubtype );
    else
        out.Char( '*' );
    ParamWriter params{ out, accept->genericParams };
    if( pb::Has( accept->q ) ) params.Owned( "q", sipsn___QvalueEncode( accept->q ) );
    params.Generic();
}

PbString *sipsn___AcceptEncode( SipsnAccept *accept )
{
    PB_ASSERT( accept );
    return sipsn::Encode( accept );
}
