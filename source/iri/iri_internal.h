// The `iri___` scanners, which the libraries on iri share. Exported, but no part of the public interface; never
// installed.
//
// Each looks at the start of `length` characters and returns how many of them form its production: the longest prefix
// that does, 0 when none. Linear time, no allocation. A negative length aborts, as does null with a length above 0.
#pragma once

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_API extern PbModule             iri___module;
PB_API extern const PbModuleRecord iri___module_record;
PB_API extern const char *const    iri___module_version_string;

/* IRI (RFC 3987 section 2.2): scheme, ":", then hierarchical part, query and fragment. A relative reference is none.
 * "[" and "]" are accepted in path and query too, because SIP URIs carry IPv6 references there:
 * "sip:bob@[2001:db8::1]:5060" has no "//", so that all of it after "sip:" is a path. */
PB_API int64_t iri___SkipIri( const PbChar *chs, int64_t length );

/* IPv4address (RFC 3986 section 3.2.2): four numbers from 0 to 255 without leading zeros. */
PB_API int64_t iri___SkipIpV4Address( const PbChar *chs, int64_t length );

/* IPv6address (RFC 3986 section 3.2.2), without brackets; the last 32 bits may be written as an IPv4address. */
PB_API int64_t iri___SkipIpV6Address( const PbChar *chs, int64_t length );

/* One digit or more; no upper bound. */
PB_API int64_t iri___SkipPort( const PbChar *chs, int64_t length );

// The IRI of a URI that iri___SkipIri covers, as a new string; see iriTryConvertFromUri.
PB_API struct PbString *iri___ConvertScannedUri( const PbChar *chs, int64_t length );

// The URI of an IRI that is known to be valid; see iriTryConvertToUri.
PB_API struct PbString *iri___ConvertValidIri( struct PbString *iri );

PB_END_DECLS
