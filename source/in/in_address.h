/* InAddress: an IPv4 or IPv6 address, without port, prefix or zone.
 *
 * Addresses are never changed. They compare by family, IPv4 first, then by bytes; the text is that of
 * inAddressToStringShrink. Results are new references; a null argument aborts. */
#ifndef IN_ADDRESS_H
#define IN_ADDRESS_H

#include "pb/pb.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( InAddress ), see pb_types.h */
typedef struct InAddress InAddress;

PB_API InAddress *inAddressCreateFrom( InAddress *source );
PB_API InAddress *inAddressRetain( InAddress *obj );
PB_API void       inAddressRelease( InAddress *obj );
PB_API PbObj     *inAddressObj( InAddress *obj );
PB_API InAddress *inAddressFrom( PbObj *obj );
PB_API PbSort    *inAddressSort( void );
PB_API PbString  *inAddressToString( InAddress *obj );
PB_API int64_t    inAddressCompare( InAddress *a, InAddress *b );
PB_API bool       inAddressEquals( InAddress *a, InAddress *b );
/* ./dev lists: end */

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
