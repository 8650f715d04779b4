// The module of in, which keeps nothing between start and stop.
#include "in_module.h"

#include "in_internal.h"

#include "product.h"

PB_DEFINE_MODULE( in, "Internet Addresses and Names", "0.0", "iri pb", nullptr, nullptr )

PbModule *inModule( void ) { return &in___module; }
