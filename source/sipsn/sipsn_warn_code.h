/* Codes of Warning, RFC 3261 section 20.43: 0 to 999. */
#ifndef SIPSN_WARN_CODE_H
#define SIPSN_WARN_CODE_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the number is 0 to 999. */
PB_API bool sipsnWarnCodeOk( int64_t warnCode );

/* The default text of a code, as a new reference; a code that has none gives a text that names its number. What is not
 * a warn code aborts. */
PB_API PbString *sipsnWarnCodeToString( int64_t warnCode );

PB_END_DECLS
#endif
