/* The +sip.instance parameter of Contact, RFC 5626 section 4.1: what stands between the double quotes, a URN in angle
 * brackets, kept as written. */
#ifndef SIPSN_SIP_INSTANCE_H
#define SIPSN_SIP_INSTANCE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an instance identifier; the empty text is not. Null aborts. */
PB_API bool sipsnSipInstanceOk( PbString *sipInstance );

PB_END_DECLS
#endif
