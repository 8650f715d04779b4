/* IRIs, RFC 3987 section 2.2: absolute, a scheme and what it says ("sip:bob@example.com"). */
#ifndef SIPSN_IRI_H
#define SIPSN_IRI_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an IRI; the empty text is not. Null aborts. */
PB_API bool sipsnIriOk( PbString *iri );

PB_END_DECLS
#endif
