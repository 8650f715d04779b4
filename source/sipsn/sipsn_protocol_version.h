/* Protocol versions, the "2.0" of "SIP/2.0", RFC 3261 section 25.1 (protocol-version): tokens, stored in lower case. */
#ifndef SIPSN_PROTOCOL_VERSION_H
#define SIPSN_PROTOCOL_VERSION_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a protocol version; the empty text is not. Null aborts. */
PB_API bool sipsnProtocolVersionOk( PbString *protocolVersion );

/* The protocol version in lower case, as a new reference; the same object when it is so already. Null and what is not
 * a protocol version abort. */
PB_API PbString *sipsnProtocolVersionNormalize( PbString *protocolVersion );

PB_END_DECLS
#endif
