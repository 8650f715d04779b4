/* The identifier of Origination-Id, 3GPP TS 24.229. */
#ifndef SIPSN_ORIGINATION_ID_H
#define SIPSN_ORIGINATION_ID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text is a UUID: 8, 4, 4, 4 and 12 hexadecimal digits that "-" joins. Null aborts. */
PB_API bool sipsnOriginationIdOk( PbString *originationId );

PB_END_DECLS
#endif
