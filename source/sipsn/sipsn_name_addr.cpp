// Reading and writing the address that many values and header fields begin with.
#include "sipsn_name_addr.h"

#include "sipsn_token_internal.h"

#include "iri/iri.h"
#include "iri/iri_internal.h"

namespace sipsn {

// Reads a URI; the IRI that it stands for, or null. Every production that is used here matches whole IRIs alone.
static PbString *TryTakeIri( Cursor &in, Production *production )
{
    const Span uri = in.Take( production );
    return uri ? iri___ConvertScannedUri( uri.chs, uri.length ) : nullptr;
}

PbString *TryTakeBracketedIri( Cursor &in )
{
    if( !in.Take( sipsn___SkipLaquot ) ) return nullptr;
    pb::Ref iri{ TryTakeIri( in, sipsn___SkipUri ) };
    return iri && in.Take( sipsn___SkipRaquot ) ? iri.Detach() : nullptr;
}

bool TryTakeNameAddr( Cursor &in, NameAddr *address, Production *bare )
{
    Cursor     ahead = in;
    const Span name  = ahead.Take( sipsn___SkipDisplayName );
    if( name && Cursor{ ahead }.Take( sipsn___SkipLaquot ) ) {
        PbString *displayName = DisplayNameOf( name.chs, name.length );
        PB_ASSERT( displayName );
        address->displayName = pb::Ref{ displayName };
        in                   = ahead;
    }
    const bool bracketed = Cursor{ in }.Take( sipsn___SkipLaquot ) ? true : false;
    address->iri         = pb::Ref{ bracketed ? TryTakeBracketedIri( in ) : TryTakeIri( in, bare ) };
    return bool( address->iri );
}

void WriteNameAddr( TextWriter &out, PbString *displayName, PbString *iri )
{
    if( displayName ) {
        out.Take( sipsn___DisplayNameEncode( displayName ) );
        out.Char( ' ' );
    }
    PbString *pbs = iriTryConvertToUri( iri );
    PB_ASSERT( pbs );
    out.Char( '<' );
    out.Take( pbs );
    out.Char( '>' );
}

} // namespace sipsn
