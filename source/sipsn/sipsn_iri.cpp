// IRIs: what is valid.
#include "sipsn_iri.h"

#include "iri/iri.h"
#include "pb/pb_frame.h"

bool sipsnIriOk( PbString *iri )
{
    PB_ASSERT( iri );
    return iriGensValidatePart( IRI_GENS_PART_IRI, iri );
}
