/* The cid parameter of Referred-By, RFC 3892 section 2.1: what stands between the double quotes, dot-atom "@" ( dot-
 * atom / host ), kept as written. */
#ifndef SIPSN_SIP_CLEAN_MSG_ID_H
#define SIPSN_SIP_CLEAN_MSG_ID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a message identifier; the empty text is not. Null aborts. */
PB_API bool sipsnSipCleanMsgIdOk( PbString *sipCleanMsgId );

PB_END_DECLS
#endif
