/* InAddress: an IPv4 or IPv6 address, without port, prefix or zone.
 *
 * Addresses are never changed. They compare by family, IPv4 first, then by bytes; the text is that of
 * inAddressToStringShrink. Results are new references; a null argument aborts. */
#ifndef IN_ADDRESS_H
#define IN_ADDRESS_H

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_DECLARE_TYPE( InAddress, inAddress )

/* The address that the whole text is (RFC 3986 section 3.2.2: IPv4address or IPv6address, no brackets), or null. */
PB_API InAddress *inAddressTryCreateFromChars( const PbChar *chs, int64_t length );

PB_API bool inAddressIsV4( InAddress *address );
PB_API bool inAddressIsV6( InAddress *address );

/* The address in network byte order: 4 or 16 bytes, as a new buffer. */
PB_API PbBuffer *inAddressBytes( InAddress *address );

/* The one canonical text, RFC 5952: lower case, no leading zeros, the first longest run of two or more zero groups as
 * "::", IPv4-mapped addresses with a dotted quad. */
PB_API PbString *inAddressToStringShrink( InAddress *address );

PB_END_DECLS
#endif
