// SipsnHeaderContentDisposition: the Content-Disposition header field, RFC 3261 section 20.11.
#include "sipsn_header_content_disposition.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnHeaderContentDisposition
{
    PbObj               obj;
    PbString           *dispositionType;
    PbString           *handling;
    SipsnGenericParams *genericParams;

    using Members =
        pb::Members< &SipsnHeaderContentDisposition::dispositionType, &SipsnHeaderContentDisposition::handling,
                     &SipsnHeaderContentDisposition::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderContentDisposition, sipsn___PbsContentDisposition, "Content-Disposition" )

static SipsnHeaderContentDisposition *TryDecode( PbString *line );
static PbString                      *EncodeLine( SipsnHeaderContentDisposition *hdr );

static constexpr sipsn::Single< SipsnHeaderContentDisposition > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderContentDisposition, sipsnHeaderContentDisposition, SIPSN_HEADER_CONTENT_DISPOSITION,
                     sipsn___PbsContentDisposition, shape )

// Takes over the reference.
static SipsnHeaderContentDisposition *CreateOwning( PbString *dispositionType )
{
    SipsnHeaderContentDisposition *hdr = pb::New< SipsnHeaderContentDisposition >();
    hdr->dispositionType               = dispositionType;
    hdr->genericParams                 = sipsnGenericParamsCreate();
    return hdr;
}

// The normaliser checks the text.
SipsnHeaderContentDisposition *sipsnHeaderContentDispositionCreate( PbString *dispositionType )
{
    return CreateOwning( sipsnDispositionTypeNormalize( dispositionType ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderContentDispositionDispositionType( SipsnHeaderContentDisposition *hdr )
{
    return PB_GET( hdr, dispositionType );
}

void sipsnHeaderContentDispositionSetDispositionType( SipsnHeaderContentDisposition **hdr, PbString *dispositionType )
{
    PB_PUT( hdr, dispositionType, sipsnDispositionTypeNormalize( dispositionType ) );
}

PbString *sipsnHeaderContentDispositionHandling( SipsnHeaderContentDisposition *hdr )
{
    return PB_GET( hdr, handling );
}

bool sipsnHeaderContentDispositionHasHandling( SipsnHeaderContentDisposition *hdr ) { return PB_HAS( hdr, handling ); }
void sipsnHeaderContentDispositionDelHandling( SipsnHeaderContentDisposition **hdr ) { PB_DEL( hdr, handling ); }
void sipsnHeaderContentDispositionSetHandling( SipsnHeaderContentDisposition **hdr, PbString *handling )
{
    PB_PUT( hdr, handling, sipsnHandlingNormalize( handling ) );
}

SipsnGenericParams *sipsnHeaderContentDispositionGenericParams( SipsnHeaderContentDisposition *hdr )
{
    return PB_GET( hdr, genericParams );
}

void sipsnHeaderContentDispositionSetGenericParams( SipsnHeaderContentDisposition **hdr,
                                                    SipsnGenericParams             *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnHeaderContentDisposition *hdr )
{
    return sipsn::TakeText( in, "handling", sipsn___SkipHandling, hdr->handling, sipsn::LowerFromChars );
}

static SipsnHeaderContentDisposition *TryDecode( PbString *line )
{
    Cursor     in{ line->chs, line->length };
    const Span dispositionType = in.Take( sipsn___SkipDispositionType );
    if( !dispositionType ) return nullptr;

    pb::Ref    hdr{ CreateOwning( sipsn::LowerFromChars( dispositionType.chs, dispositionType.length ) ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, hdr.Get() ); };
    return sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped ) ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderContentDisposition *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Text( hdr->dispositionType );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Text( "handling", hdr->handling );
        params.Generic();
    } );
}
