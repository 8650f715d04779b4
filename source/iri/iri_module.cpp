// The module of iri, which keeps nothing between start and stop.
#include "iri_module.h"

#include "iri_internal.h"

#include "pb/pb_internal.h"

#include "product.h"

PB_DEFINE_MODULE( iri, "IRI and URI Syntax", "0.0", "pb", nullptr, nullptr )

PbModule *iriModule( void ) { return &iri___module; }
