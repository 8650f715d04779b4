// The address that many values and header fields begin with, RFC 3261 section 25.1 (name-addr, addr-spec). C++ only;
// never installed.
#pragma once

#include "sipsn_cursor.h"
#include "sipsn_text_writer.h"

namespace sipsn {

// What an address holds: the display name is null when there is none.
struct NameAddr
{
    pb::Ref< PbString > displayName;
    pb::Ref< PbString > iri;
};

// Reads [ display-name ] LAQUOT URI RAQUOT, or a bare URI that `bare` matches. A display name counts only before "<";
// what only looks like one is read again as the beginning of a bare URI. False, with nothing to be used, when neither
// form is there or the URI does not convert.
template< class Link > bool TryTakeNameAddr( BasicCursor< Link > &in, NameAddr *address, Production *bare );

// Reads LAQUOT URI RAQUOT; the IRI, or null.
template< class Link > PbString *TryTakeBracketedIri( BasicCursor< Link > &in );

// The display name, if there is one, and the URI of the IRI in angle brackets.
void WriteNameAddr( TextWriter &out, PbString *displayName, PbString *iri );

} // namespace sipsn
