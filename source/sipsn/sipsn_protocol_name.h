/* Protocol names, the "SIP" of "SIP/2.0", RFC 3261 section 25.1 (protocol-name): tokens. Alone among tokens they are
 * stored in upper case, as they are written. */
#ifndef SIPSN_PROTOCOL_NAME_H
#define SIPSN_PROTOCOL_NAME_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a protocol name; the empty text is not. Null aborts. */
PB_API bool sipsnProtocolNameOk( PbString *protocolName );

/* The protocol name in upper case, as a new reference; the same object when it is so already. Null and what is not a
 * protocol name abort. */
PB_API PbString *sipsnProtocolNameNormalize( PbString *protocolName );

PB_END_DECLS
#endif
