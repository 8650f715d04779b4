/* IRIs that stand without angle brackets where parameters may follow, RFC 5360 and RFC 6794. */
#ifndef SIPSN_BARE_IRI_H
#define SIPSN_BARE_IRI_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text is an IRI without ";", "?" and ",", which would end it. Null aborts. */
PB_API bool sipsnBareIriOk( PbString *bareIri );

PB_END_DECLS
#endif
