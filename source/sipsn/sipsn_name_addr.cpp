// Reading and writing the address that many values and header fields begin with.
#include "sipsn_name_addr.h"

#include "sipsn_token_internal.h"

#include "iri/iri_internal.h"

namespace sipsn {

// Reads a URI; the IRI that it stands for, or null. Every production that is used here matches whole IRIs alone.
template< class Link > static PbString *TryTakeIri( BasicCursor< Link > &in, Production *production )
{
    const Span uri = in.Take( production, "a URI" );
    PbString  *iri = uri ? iri___ConvertScannedUri( uri.chs, uri.length ) : nullptr;
    if( uri && !iri ) in.Refuse( uri, "a URI" );
    return iri;
}

template< class Link > PbString *TryTakeBracketedIri( BasicCursor< Link > &in )
{
    if( !in.Take( sipsn___SkipLaquot ) ) return nullptr;
    pb::Ref iri{ TryTakeIri( in, sipsn___SkipUri ) };
    return iri && in.Take( sipsn___SkipRaquot ) ? iri.Detach() : nullptr;
}

template< class Link > bool TryTakeNameAddr( BasicCursor< Link > &in, NameAddr *address, Production *bare )
{
    BasicCursor< Link > ahead = in;
    const Span          name  = ahead.Take( sipsn___SkipDisplayName, "a display name" );
    if( name && ahead.Sees( sipsn___SkipLaquot ) ) {
        PbString *displayName = DisplayNameOf( name.chs, name.length );
        PB_ASSERT( displayName );
        address->displayName = pb::Ref{ displayName };
        in                   = ahead;
    }
    address->iri = pb::Ref{ in.Sees( sipsn___SkipLaquot ) ? TryTakeBracketedIri( in ) : TryTakeIri( in, bare ) };
    return bool( address->iri );
}

template PbString *TryTakeBracketedIri( Cursor & );
template PbString *TryTakeBracketedIri( WatchedCursor & );
template bool      TryTakeNameAddr( Cursor &, NameAddr *, Production      *);
template bool      TryTakeNameAddr( WatchedCursor &, NameAddr *, Production      *);

void WriteNameAddr( TextWriter &out, PbString *displayName, PbString *iri )
{
    if( displayName ) {
        out.Take( sipsn___DisplayNameEncode( displayName ) );
        out.Char( ' ' );
    }
    out.Char( '<' );
    out.Take( iri___ConvertValidIri( iri ) );
    out.Char( '>' );
}

} // namespace sipsn
