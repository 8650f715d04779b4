// SipsnAccept: one accept-range, RFC 3261 section 20.1.
#include "sipsn_accept.h"

#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Accept )

using sipsn::BasicCursor, sipsn::TextWriter;

struct SipsnAccept
{
    PbObj               obj;
    PbString           *mediaType;    // null: any
    PbString           *mediaSubtype; // null: any
    SipsnGenericParams *genericParams;
    int64_t             q;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::OptionalText( "mediaType", &SipsnAccept::mediaType, sipsn::rule::mediaType ),
            sipsn::OptionalText( "mediaSubtype", &SipsnAccept::mediaSubtype, sipsn::rule::mediaSubtype ),
            sipsn::IntParam( "q", &SipsnAccept::q, sipsn::rule::qvalue ),
            sipsn::OtherParams( &SipsnAccept::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnAccept, sipsnAccept, SIPSN_ACCEPT, accept, accept, sipsn___AcceptEncode )

SipsnAccept *sipsnAcceptCreate( void ) { return sipsn::New< SipsnAccept >(); }

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnAcceptMediaType( SipsnAccept *accept ) { return PB_GET( accept, mediaType ); }
bool      sipsnAcceptHasMediaType( SipsnAccept *accept ) { return PB_HAS( accept, mediaType ); }
void      sipsnAcceptSetMediaType( SipsnAccept **accept, PbString *mediaType )
{
    PB_SET( accept, mediaType, mediaType, sipsnMediaTypeNormalize( mediaType ) );
}
void sipsnAcceptDelMediaType( SipsnAccept **accept ) { PB_DEL( accept, mediaType ); }

PbString *sipsnAcceptMediaSubtype( SipsnAccept *accept ) { return PB_GET( accept, mediaSubtype ); }
bool      sipsnAcceptHasMediaSubtype( SipsnAccept *accept ) { return PB_HAS( accept, mediaSubtype ); }
void      sipsnAcceptSetMediaSubtype( SipsnAccept **accept, PbString *mediaSubtype )
{
    PB_SET( accept, mediaSubtype, mediaSubtype, sipsnMediaSubtypeNormalize( mediaSubtype ) );
}
void sipsnAcceptDelMediaSubtype( SipsnAccept **accept ) { PB_DEL( accept, mediaSubtype ); }

SipsnGenericParams *sipsnAcceptGenericParams( SipsnAccept *accept ) { return PB_GET( accept, genericParams ); }
void                sipsnAcceptSetGenericParams( SipsnAccept **accept, SipsnGenericParams *genericParams )
{
    PB_SET( accept, genericParams, genericParams, pb::Retain( genericParams ) );
}

int64_t sipsnAcceptQvalue( SipsnAccept *accept ) { return PB_GET( accept, q ); }
bool    sipsnAcceptHasQvalue( SipsnAccept *accept ) { return PB_HAS( accept, q ); }
void    sipsnAcceptSetQvalue( SipsnAccept **accept, int64_t qvalue )
{
    PB_SET( accept, q, sipsnQvalueOk( qvalue ), qvalue );
}
void sipsnAcceptDelQvalue( SipsnAccept **accept ) { PB_DEL( accept, q ); }

// ---- Text form -------------------------------------------------------------------------------------

// A name in lower case, or "*", which leaves it null. False when neither is there.
template< class Link > static bool TryTakeName( BasicCursor< Link > &in, const sipsn::TextRule &rule, PbString *&name )
{
    name = TryTake( in, rule );
    return name || in.Take( PbChar{ '*' } );
}

static void WriteName( TextWriter &out, PbString *name )
{
    if( name )
        out.Text( name );
    else
        out.Char( '*' );
}

namespace {

struct Form
{
    template< class Link > SipsnAccept *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref accept{ sipsnAcceptCreate() };
        if( !TryTakeName( in, sipsn::rule::mediaType, accept->mediaType ) || !in.Take( sipsn___SkipSlash ) ||
            !TryTakeName( in, sipsn::rule::mediaSubtype, accept->mediaSubtype ) )
            return nullptr;
        if( accept->mediaSubtype && !accept->mediaType && !in.Lacks( "\"*\" behind \"*/\"" ) ) return nullptr;
        return TryDecodeParams( in, *accept.Get() ) ? accept.Detach() : nullptr;
    }

    void Write( TextWriter &out, SipsnAccept &accept ) const
    {
        WriteName( out, accept.mediaType );
        out.Char( '/' );
        WriteName( out, accept.mediaType ? accept.mediaSubtype : nullptr );
        WriteParams( out, accept );
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( Accept, accept, form )
