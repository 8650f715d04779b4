// Validation: the scanner over a whole text.
#include "iri_gens.h"

#include "iri_internal.h"

#include "pb/pb_internal.h"

bool iriGensValidatePart( int64_t part, PbString *text )
{
    PB_ASSERT( part == IRI_GENS_PART_IRI );
    PB_ASSERT( text );
    return text->length > 0 && iri___SkipIri( text->chs, text->length ) == text->length;
}
