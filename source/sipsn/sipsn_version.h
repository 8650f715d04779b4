/* SipsnVersion: the protocol name and version of a start line or a Via, RFC 3261 section 7.1.
 *
 *     SIP-Version = protocol-name SLASH protocol-version
 *
 *     protocol name      a token, in upper case; never absent
 *     protocol version   a token, in lower case; never absent
 *
 * Getters return a new reference. Setters replace *version by a private copy when it is shared. A null or invalid
 * argument aborts. Versions compare by name, then by version; the text is "SIP/2.0". */
#ifndef SIPSN_VERSION_H
#define SIPSN_VERSION_H

#include "pb/pb.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnVersion ), see pb_types.h */
typedef struct SipsnVersion SipsnVersion;

PB_API SipsnVersion *sipsnVersionCreateFrom( SipsnVersion *source );
PB_API SipsnVersion *sipsnVersionRetain( SipsnVersion *obj );
PB_API void          sipsnVersionRelease( SipsnVersion *obj );
PB_API PbObj        *sipsnVersionObj( SipsnVersion *obj );
PB_API SipsnVersion *sipsnVersionFrom( PbObj *obj );
PB_API PbSort       *sipsnVersionSort( void );
PB_API PbString     *sipsnVersionToString( SipsnVersion *obj );
PB_API int64_t       sipsnVersionCompare( SipsnVersion *a, SipsnVersion *b );
PB_API bool          sipsnVersionEquals( SipsnVersion *a, SipsnVersion *b );
/* ./dev lists: end */

PB_API SipsnVersion *sipsnVersionCreate( PbString *protocolName, PbString *protocolVersion );

/* "SIP/2.0": a new reference to one shared object. */
PB_API SipsnVersion *sipsnVersionCreateSip20( void );

PB_API PbString *sipsnVersionProtocolName( SipsnVersion *version );
PB_API void      sipsnVersionSetProtocolName( SipsnVersion **version, PbString *protocolName );

PB_API PbString *sipsnVersionProtocolVersion( SipsnVersion *version );
PB_API void      sipsnVersionSetProtocolVersion( SipsnVersion **version, PbString *protocolVersion );

/* Whether the name is exactly "SIP", and whether the version is exactly "2.0" as well. */
PB_API bool sipsnVersionIsSip( SipsnVersion *version );
PB_API bool sipsnVersionIsSip20( SipsnVersion *version );

PB_END_DECLS
#endif
