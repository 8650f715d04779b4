/* The privacy parameter of Diversion, RFC 5806, such as "full", "name", "uri", "off": a token or the content of a
 * quoted string, stored in lower case. */
#ifndef SIPSN_DIVERSION_PRIVACY_H
#define SIPSN_DIVERSION_PRIVACY_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is a token or a quoted string with its quotes, as it stands on the wire. Null aborts. */
PB_API bool sipsnDiversionPrivacyOk( PbString *diversionPrivacy );

/* The text in lower case, as a new reference; the same object when it is so already. Any text will do, for the content
 * of a quoted string need be no token; null aborts. */
PB_API PbString *sipsnDiversionPrivacyNormalize( PbString *diversionPrivacy );

PB_END_DECLS
#endif
