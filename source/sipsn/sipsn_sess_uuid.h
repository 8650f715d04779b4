/* Session identifiers, RFC 7989 section 5 (sess-uuid): exactly 32 digits and lower-case letters. Letters beyond "f"
 * are let pass. */
#ifndef SIPSN_SESS_UUID_H
#define SIPSN_SESS_UUID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a session identifier. Null aborts. */
PB_API bool sipsnSessUuidOk( PbString *sessUuid );

/* The nil identifier, 32 zeros, as a new reference, while the module is started. The name is spelled so. */
PB_API PbString *spisnSessUuidNil( void );

/* Whether the text is the nil identifier. Null aborts. */
PB_API bool sipsnSessUuidIsNil( PbString *sessUuid );

PB_END_DECLS
#endif
