// SipsnAcceptEncoding: one element of Accept-Encoding, RFC 3261 section 20.2.
#include "sipsn_accept_encoding.h"

#include "sipsn_content_coding.h"
#include "sipsn_qvalue.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnAcceptEncoding
{
    PbObj               obj;
    PbString           *contentCoding; // null: any
    SipsnGenericParams *genericParams;
    int64_t             q;

    using Members      = pb::Members< &SipsnAcceptEncoding::contentCoding, &SipsnAcceptEncoding::genericParams,
                                 &SipsnAcceptEncoding::q >;
    using CompareOrder = pb::Members< &SipsnAcceptEncoding::contentCoding, &SipsnAcceptEncoding::q,
                                      &SipsnAcceptEncoding::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnAcceptEncoding, sipsnAcceptEncoding, SIPSN_ACCEPT_ENCODING, acceptEncoding, ae,
                   sipsn___AcceptEncodingEncode )

// Takes over the reference, which may be null.
static SipsnAcceptEncoding *CreateOwning( PbString *contentCoding )
{
    SipsnAcceptEncoding *acceptEncoding = pb::New< SipsnAcceptEncoding >();
    acceptEncoding->contentCoding       = contentCoding;
    acceptEncoding->genericParams       = sipsnGenericParamsCreate();
    return acceptEncoding;
}

SipsnAcceptEncoding *sipsnAcceptEncodingCreate( void ) { return CreateOwning( nullptr ); }

SipsnAcceptEncoding *sipsnAcceptEncodingCreateWithContentCoding( PbString *contentCoding )
{
    return CreateOwning( sipsnContentCodingNormalize( contentCoding ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnAcceptEncodingContentCoding( SipsnAcceptEncoding *acceptEncoding )
{
    return PB_GET( acceptEncoding, contentCoding );
}

bool sipsnAcceptEncodingHasContentCoding( SipsnAcceptEncoding *acceptEncoding )
{
    return PB_HAS( acceptEncoding, contentCoding );
}

void sipsnAcceptEncodingSetContentCoding( SipsnAcceptEncoding **acceptEncoding, PbString *contentCoding )
{
    PB_SET( acceptEncoding, contentCoding, contentCoding, sipsnContentCodingNormalize( contentCoding ) );
}

void sipsnAcceptEncodingDelContentCoding( SipsnAcceptEncoding **acceptEncoding )
{
    PB_DEL( acceptEncoding, contentCoding );
}

SipsnGenericParams *sipsnAcceptEncodingGenericParams( SipsnAcceptEncoding *acceptEncoding )
{
    return PB_GET( acceptEncoding, genericParams );
}

void sipsnAcceptEncodingSetGenericParams( SipsnAcceptEncoding **acceptEncoding, SipsnGenericParams *genericParams )
{
    PB_SET( acceptEncoding, genericParams, genericParams, pb::Retain( genericParams ) );
}

int64_t sipsnAcceptEncodingQvalue( SipsnAcceptEncoding *acceptEncoding ) { return PB_GET( acceptEncoding, q ); }
bool    sipsnAcceptEncodingHasQvalue( SipsnAcceptEncoding *acceptEncoding ) { return PB_HAS( acceptEncoding, q ); }
void    sipsnAcceptEncodingDelQvalue( SipsnAcceptEncoding **acceptEncoding ) { PB_DEL( acceptEncoding, q ); }
void    sipsnAcceptEncodingSetQvalue( SipsnAcceptEncoding **acceptEncoding, int64_t qvalue )
{
    PB_SET( acceptEncoding, q, sipsnQvalueOk( qvalue ), qvalue );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnAcceptEncoding *acceptEncoding )
{
    Span text = in.Param( "q", sipsn___SkipQvalue );
    if( !text ) return false;
    acceptEncoding->q = sipsn___QvalueTryDecode( text.chs, text.length );
    PB_ASSERT( sipsnQvalueOk( acceptEncoding->q ) );
    return true;
}

SipsnAcceptEncoding *sipsn___AcceptEncodingTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor in{ chs, length };
    Span   contentCoding = in.Take( sipsn___SkipContentCoding ); // "*" is one as well
    if( !contentCoding ) return nullptr;

    pb::Ref    acceptEncoding{ CreateOwning( sipsn::LowerFromChars( contentCoding.chs, contentCoding.length ) ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, acceptEncoding.Get() ); };
    return sipsn::TryDecodeParams( in, &acceptEncoding->genericParams, takeTyped ) ? acceptEncoding.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnAcceptEncoding *acceptEncoding )
{
    if( acceptEncoding->contentCoding )
        out.Text( acceptEncoding->contentCoding );
    else
        out.Char( '*' );
    ParamWriter params{ out, acceptEncoding->genericParams };
    if( pb::Has( acceptEncoding->q ) ) params.Owned( "q", sipsn___QvalueEncode( acceptEncoding->q ) );
    params.Generic();
}

PbString *sipsn___AcceptEncodingEncode( SipsnAcceptEncoding *acceptEncoding )
{
    PB_ASSERT( acceptEncoding );
    return sipsn::Encode( acceptEncoding );
}
