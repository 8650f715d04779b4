/* SipsnHeaderSubject: the Subject header field, RFC 3261 section 20.36; what a call is about.
 *
 * Example: Subject: Need more boxes
 *
 *     Subject = [ TEXT-UTF8-TRIM ]
 *
 *     subject   free text with single spaces between its words; never absent, may be empty
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. The setter
 * replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SUBJECT_H
#define SIPSN_HEADER_SUBJECT_H

#include "sipsn_header.h"
#include "sipsn_subject.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderSubject, sipsnHeaderSubject )

PB_API SipsnHeaderSubject *sipsnHeaderSubjectCreate( PbString *subject );

PB_API PbString *sipsnHeaderSubjectSubject( SipsnHeaderSubject *hdr );
PB_API void      sipsnHeaderSubjectSetSubject( SipsnHeaderSubject **hdr, PbString *subject );

PB_END_DECLS
#endif
