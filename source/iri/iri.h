/* iri: IRIs (RFC 3987) and URIs (RFC 3986): validation, and conversion between the two. This file includes all of it.
 */
#ifndef IRI_H
#define IRI_H

/* ./dev lists: includes */
#include "iri_convert.h"
#include "iri_gens.h"
#include "iri_module.h"
/* ./dev lists: end */

#endif
