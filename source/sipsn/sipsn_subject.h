/* Values of the Subject header field, RFC 3261 section 20.36: free text without control characters, stored with single
 * spaces between its words. It may be empty. */
#ifndef SIPSN_SUBJECT_H
#define SIPSN_SUBJECT_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the text has no control characters but tabs; the empty text and blanks alone are valid. Null aborts. */
PB_API bool sipsnSubjectOk( PbString *subject );

/* The words separated by single spaces, as a new reference; the same object when they are so already. Text that is not
 * valid aborts, with the context "subject invalid". */
PB_API PbString *sipsnSubjectNormalize( PbString *subject );

PB_END_DECLS
#endif
