/* Protocols of Reason, RFC 3326 section 2 ("SIP", "Q.850"): tokens, kept as written. */
#ifndef SIPSN_REASON_PROTOCOL_H
#define SIPSN_REASON_PROTOCOL_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a token; the empty text is not. Null aborts. */
PB_API bool sipsnReasonProtocolOk( PbString *reasonProtocol );

PB_END_DECLS
#endif
