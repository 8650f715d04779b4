/* SipsnHeaderPriority: the Priority header field, RFC 3261 section 20.26; how urgent a request is.
 *
 * Example: Priority: urgent
 *
 *     Priority = token
 *
 *     priority value   a token, kept in lower case; never absent
 *
 * Four values have functions of their own: "emergency", "urgent", "normal" and "non-urgent". Others are as good.
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * Setters replace *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_PRIORITY_H
#define SIPSN_HEADER_PRIORITY_H

#include "sipsn_header.h"
#include "sipsn_priority_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPriority ), see sipsn_header.h */
typedef struct SipsnHeaderPriority SipsnHeaderPriority;

PB_API SipsnHeaderPriority *sipsnHeaderPriorityCreateFrom( SipsnHeaderPriority *source );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityRetain( SipsnHeaderPriority *obj );
PB_API void                 sipsnHeaderPriorityRelease( SipsnHeaderPriority *obj );
PB_API PbObj               *sipsnHeaderPriorityObj( SipsnHeaderPriority *obj );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderPrioritySort( void );
PB_API PbString            *sipsnHeaderPriorityToString( SipsnHeaderPriority *obj );
PB_API int64_t              sipsnHeaderPriorityCompare( SipsnHeaderPriority *a, SipsnHeaderPriority *b );
PB_API bool                 sipsnHeaderPriorityEquals( SipsnHeaderPriority *a, SipsnHeaderPriority *b );

PB_API SipsnHeaderPriority *sipsnHeaderPriorityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderPriorityEncode( SipsnHeaderPriority *hdr );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPriorityEncodeToMessage( SipsnHeaderPriority *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderPriorityPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPriorityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderPriorityStore( SipsnHeaderPriority *hdr );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPriority *sipsnHeaderPriorityCreate( PbString *priorityValue );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityCreateEmergency( void );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityCreateUrgent( void );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityCreateNormal( void );
PB_API SipsnHeaderPriority *sipsnHeaderPriorityCreateNonUrgent( void );

PB_API PbString *sipsnHeaderPriorityPriorityValue( SipsnHeaderPriority *hdr );
PB_API void      sipsnHeaderPrioritySetPriorityValue( SipsnHeaderPriority **hdr, PbString *priorityValue );

PB_API bool sipsnHeaderPriorityIsEmergency( SipsnHeaderPriority *hdr );
PB_API bool sipsnHeaderPriorityIsUrgent( SipsnHeaderPriority *hdr );
PB_API bool sipsnHeaderPriorityIsNormal( SipsnHeaderPriority *hdr );
PB_API bool sipsnHeaderPriorityIsNonUrgent( SipsnHeaderPriority *hdr );

PB_API void sipsnHeaderPrioritySetEmergency( SipsnHeaderPriority **hdr );
PB_API void sipsnHeaderPrioritySetUrgent( SipsnHeaderPriority **hdr );
PB_API void sipsnHeaderPrioritySetNormal( SipsnHeaderPriority **hdr );
PB_API void sipsnHeaderPrioritySetNonUrgent( SipsnHeaderPriority **hdr );

PB_END_DECLS
#endif
