// SipsnHeaderReplaces: the Replaces header field, RFC 3891 section 6.1.
#include "sipsn_header_replaces.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnHeaderReplaces
{
    PbObj               obj;
    PbString           *callId;
    PbString           *toTag;
    PbString           *fromTag;
    bool                earlyOnly;
    SipsnGenericParams *genericParams;

    using Members =
        pb::Members< &SipsnHeaderReplaces::callId, &SipsnHeaderReplaces::toTag, &SipsnHeaderReplaces::fromTag,
                     &SipsnHeaderReplaces::earlyOnly, &SipsnHeaderReplaces::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderReplaces, sipsn___PbsReplaces, "Replaces" )

static SipsnHeaderReplaces *TryDecodeLine( PbString *line );
static PbString            *EncodeLine( SipsnHeaderReplaces *hdr );

static constexpr sipsn::Single< SipsnHeaderReplaces > shape{ .tryDecode = TryDecodeLine, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderReplaces, sipsnHeaderReplaces, SIPSN_HEADER_REPLACES, sipsn___PbsReplaces, shape )

// Takes over the reference.
static SipsnHeaderReplaces *CreateOwning( PbString *callId )
{
    SipsnHeaderReplaces *hdr = pb::New< SipsnHeaderReplaces >();
    hdr->callId              = callId;
    hdr->genericParams       = sipsnGenericParamsCreate();
    return hdr;
}

SipsnHeaderReplaces *sipsnHeaderReplacesCreate( PbString *callId )
{
    PB_ASSERT( sipsnCallIdOk( callId ) );
    return CreateOwning( pb::Retain( callId ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderReplacesCallId( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, callId ); }
void      sipsnHeaderReplacesSetCallId( SipsnHeaderReplaces **hdr, PbString *callId )
{
    PB_SET( hdr, callId, sipsnCallIdOk( callId ), pb::Retain( callId ) );
}

PbString *sipsnHeaderReplacesToTag( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, toTag ); }
bool      sipsnHeaderReplacesHasToTag( SipsnHeaderReplaces *hdr ) { return PB_HAS( hdr, toTag ); }
void      sipsnHeaderReplacesDelToTag( SipsnHeaderReplaces **hdr ) { PB_DEL( hdr, toTag ); }
void      sipsnHeaderReplacesSetToTag( SipsnHeaderReplaces **hdr, PbString *tag )
{
    PB_SET( hdr, toTag, sipsnTagOk( tag ), pb::Retain( tag ) );
}

PbString *sipsnHeaderReplacesFromTag( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, fromTag ); }
bool      sipsnHeaderReplacesHasFromTag( SipsnHeaderReplaces *hdr ) { return PB_HAS( hdr, fromTag ); }
void      sipsnHeaderReplacesDelFromTag( SipsnHeaderReplaces **hdr ) { PB_DEL( hdr, fromTag ); }
void      sipsnHeaderReplacesSetFromTag( SipsnHeaderReplaces **hdr, PbString *tag )
{
    PB_SET( hdr, fromTag, sipsnTagOk( tag ), pb::Retain( tag ) );
}

bool sipsnHeaderReplacesEarlyOnly( SipsnHeaderReplaces *hdr ) { return PB_GET( hdr, earlyOnly ); }
void sipsnHeaderReplacesSetEarlyOnly( SipsnHeaderReplaces **hdr, bool earlyOnly )
{
    PB_PUT( hdr, earlyOnly, earlyOnly );
}

SipsnGenericParams *sipsnHeaderReplacesGenericParams( SipsnHeaderReplaces *hdr )
{
    return PB_GET( hdr, genericParams );
}
void sipsnHeaderReplacesSetGenericParams( SipsnHeaderReplaces **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnHeaderReplaces *hdr )
{
    return sipsn::TakeText( in, "from-tag", sipsn___SkipTag, hdr->fromTag ) ||
           sipsn::TakeText( in, "to-tag", sipsn___SkipTag, hdr->toTag ) ||
           sipsn::TakeFlag( in, "early-only", hdr->earlyOnly );
}

static SipsnHeaderReplaces *TryDecodeLine( PbString *line )
{
    Cursor     in{ line->chs, line->length };
    const Span callId = in.Take( sipsn___SkipCallId );
    if( !callId ) return nullptr;

    pb::Ref    hdr{ CreateOwning( callId.ToString() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, hdr.Get() ); };
    return sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped ) ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderReplaces *hdr )
{
    return sipsn::TextOf( [ & ]( sipsn::TextWriter &out ) {
        out.Text( hdr->callId );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Text( "from-tag", hdr->fromTag );
        params.Text( "to-tag", hdr->toTag );
        params.Flag( "early-only", hdr->earlyOnly );
        params.Generic();
    } );
}
