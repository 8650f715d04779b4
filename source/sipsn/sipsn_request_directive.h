/* The directives of Request-Disposition, RFC 3841 section 9.1: a closed set. */
#ifndef SIPSN_REQUEST_DIRECTIVE_H
#define SIPSN_REQUEST_DIRECTIVE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text is "proxy", "redirect", "cancel", "no-cancel", "fork", "no-fork", "recurse", "no-recurse",
 * "parallel", "sequential", "queue" or "no-queue", in any letter case; kept in lower case. Null aborts. */
PB_API bool sipsnRequestDirectiveOk( PbString *requestDirective );

PB_END_DECLS
#endif
