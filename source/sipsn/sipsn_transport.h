/* Transports of Via, RFC 3261 section 25.1 (transport): tokens, stored in lower case. */
#ifndef SIPSN_TRANSPORT_H
#define SIPSN_TRANSPORT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a transport; the empty text is not. Null aborts. */
PB_API bool sipsnTransportOk( PbString *transport );

/* The transport in lower case, as a new reference; the same object when it is so already. Null and what is not a
 * transport abort. */
PB_API PbString *sipsnTransportNormalize( PbString *transport );

PB_END_DECLS
#endif
