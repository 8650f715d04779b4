/* Conversion between URIs and IRIs, RFC 3987 section 3. Domain names are not converted (no IDNA): an IRI and its URI
 * differ in percent escapes alone. Text that went through both conversions is stable from then on.
 *
 * Results are new references, to the text itself when nothing changes. Null aborts. */
#ifndef IRI_CONVERT_H
#define IRI_CONVERT_H

#include "pb/pb.h"

PB_BEGIN_DECLS

/* The URI, or IRI, with the escapes of UTF-8 sequences turned into the characters that an IRI may hold at that place
 * (RFC 3987 section 3.2). Escapes of ASCII, of control characters and of what is not UTF-8 stay. Formatting characters
 * for bidirectional text, which change the look of what is around them, are always escapes (section 4.1). Null when the
 * text is not a valid IRI, as the empty text is none. */
PB_API PbString *iriTryConvertFromUri( PbString *uri );

/* The IRI with each character beyond ASCII as the escapes of its UTF-8 (RFC 3987 section 3.1). Null when it is not a
 * valid IRI. */
PB_API PbString *iriTryConvertToUri( PbString *iri );

PB_END_DECLS
#endif
