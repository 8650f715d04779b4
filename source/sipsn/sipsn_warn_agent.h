/* Agents of Warning, RFC 3261 section 20.43: host [ ":" port ] or a token as pseudonym, kept as written. */
#ifndef SIPSN_WARN_AGENT_H
#define SIPSN_WARN_AGENT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is an agent; the empty text is not. Null aborts. */
PB_API bool sipsnWarnAgentOk( PbString *warnAgent );

PB_END_DECLS
#endif
