/* The epid parameter of From and To, an endpoint identifier: 1 to 16 token characters, kept as written. */
#ifndef SIPSN_EPID_H
#define SIPSN_EPID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an endpoint identifier; the empty text is not. Null aborts. */
PB_API bool sipsnEpidOk( PbString *epid );

PB_END_DECLS
#endif
