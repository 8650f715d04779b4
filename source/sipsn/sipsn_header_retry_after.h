/* SipsnHeaderRetryAfter: the Retry-After header field, RFC 3261 section 20.33; when to try again.
 *
 * Example: Retry-After: 18000;duration=3600;lang=en
 *
 *     Retry-After = 1*DIGIT [ comment ] *( ";" ( "duration" "=" 1*DIGIT / generic-param ) )
 *
 *     delta seconds    seconds until then, 0 or above; never absent
 *     duration         seconds for which it holds from then, 0 or above; -1 when absent
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The comment is read and not kept. Of
 * several durations the last counts; one that is not a number is a generic parameter. Text that no ";" begins, behind
 * the comment or behind the last parameter, is ignored. Getters return new references. Setters and deleters replace
 * *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_RETRY_AFTER_H
#define SIPSN_HEADER_RETRY_AFTER_H

#include "sipsn_delta_seconds.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRetryAfter ), see sipsn_header.h */
typedef struct SipsnHeaderRetryAfter SipsnHeaderRetryAfter;

PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterCreateFrom( SipsnHeaderRetryAfter *source );
PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterRetain( SipsnHeaderRetryAfter *obj );
PB_API void                   sipsnHeaderRetryAfterRelease( SipsnHeaderRetryAfter *obj );
PB_API PbObj                 *sipsnHeaderRetryAfterObj( SipsnHeaderRetryAfter *obj );
PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterFrom( PbObj *obj );
PB_API PbSort                *sipsnHeaderRetryAfterSort( void );
PB_API PbString              *sipsnHeaderRetryAfterToString( SipsnHeaderRetryAfter *obj );
PB_API int64_t                sipsnHeaderRetryAfterCompare( SipsnHeaderRetryAfter *a, SipsnHeaderRetryAfter *b );
PB_API bool                   sipsnHeaderRetryAfterEquals( SipsnHeaderRetryAfter *a, SipsnHeaderRetryAfter *b );

PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader    *sipsnHeaderRetryAfterEncode( SipsnHeaderRetryAfter *hdr );
PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderRetryAfterEncodeToMessage( SipsnHeaderRetryAfter *hdr, SipsnMessage **msg );
PB_API bool                   sipsnHeaderRetryAfterPresentInMessage( SipsnMessage *msg );
PB_API void                   sipsnHeaderRetryAfterRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore               *sipsnHeaderRetryAfterStore( SipsnHeaderRetryAfter *hdr );
PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRetryAfter *sipsnHeaderRetryAfterCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderRetryAfterDeltaSeconds( SipsnHeaderRetryAfter *hdr );
PB_API void    sipsnHeaderRetryAfterSetDeltaSeconds( SipsnHeaderRetryAfter **hdr, int64_t deltaSeconds );

PB_API int64_t sipsnHeaderRetryAfterDuration( SipsnHeaderRetryAfter *hdr );
PB_API bool    sipsnHeaderRetryAfterHasDuration( SipsnHeaderRetryAfter *hdr );
PB_API void    sipsnHeaderRetryAfterDelDuration( SipsnHeaderRetryAfter **hdr );
PB_API void    sipsnHeaderRetryAfterSetDuration( SipsnHeaderRetryAfter **hdr, int64_t deltaSeconds );

PB_API SipsnGenericParams *sipsnHeaderRetryAfterGenericParams( SipsnHeaderRetryAfter *hdr );
PB_API void sipsnHeaderRetryAfterSetGenericParams( SipsnHeaderRetryAfter **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
