/* Validation by the generic syntax of IRIs, RFC 3987 section 2.2. */
#ifndef IRI_GENS_H
#define IRI_GENS_H

#include "pb/pb.h"

PB_BEGIN_DECLS

#define IRI_GENS_PART_IRI 0 /* the whole IRI, from its scheme on */

/* Whether the whole text is that part. "[" and "]" are accepted in path and query too, as SIP URIs carry IPv6
 * references there. Null and another part abort. */
PB_API bool iriGensValidatePart( int64_t part, PbString *text );

PB_END_DECLS
#endif
