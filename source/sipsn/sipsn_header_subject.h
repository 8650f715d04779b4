/* SipsnHeaderSubject: the Subject header field, RFC 3261 section 20.36; what a call is about.
 *
 * Example: Subject: Need more boxes
 *
 *     Subject = [ TEXT-UTF8-TRIM ]
 *
 *     subject   free text with single spaces between its words; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * The setter replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_SUBJECT_H
#define SIPSN_HEADER_SUBJECT_H

#include "sipsn_header.h"
#include "sipsn_subject.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSubject ), see sipsn_header.h */
typedef struct SipsnHeaderSubject SipsnHeaderSubject;

PB_API SipsnHeaderSubject *sipsnHeaderSubjectCreateFrom( SipsnHeaderSubject *source );
PB_API SipsnHeaderSubject *sipsnHeaderSubjectRetain( SipsnHeaderSubject *obj );
PB_API void                sipsnHeaderSubjectRelease( SipsnHeaderSubject *obj );
PB_API PbObj              *sipsnHeaderSubjectObj( SipsnHeaderSubject *obj );
PB_API SipsnHeaderSubject *sipsnHeaderSubjectFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderSubjectSort( void );
PB_API PbString           *sipsnHeaderSubjectToString( SipsnHeaderSubject *obj );
PB_API int64_t             sipsnHeaderSubjectCompare( SipsnHeaderSubject *a, SipsnHeaderSubject *b );
PB_API bool                sipsnHeaderSubjectEquals( SipsnHeaderSubject *a, SipsnHeaderSubject *b );

PB_API SipsnHeaderSubject *sipsnHeaderSubjectTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderSubjectEncode( SipsnHeaderSubject *hdr );
PB_API SipsnHeaderSubject *sipsnHeaderSubjectTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderSubjectEncodeToMessage( SipsnHeaderSubject *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderSubjectPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderSubjectRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderSubjectStore( SipsnHeaderSubject *hdr );
PB_API SipsnHeaderSubject *sipsnHeaderSubjectTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderSubject *sipsnHeaderSubjectCreate( PbString *subject );

PB_API PbString *sipsnHeaderSubjectSubject( SipsnHeaderSubject *hdr );
PB_API void      sipsnHeaderSubjectSetSubject( SipsnHeaderSubject **hdr, PbString *subject );

PB_END_DECLS
#endif
