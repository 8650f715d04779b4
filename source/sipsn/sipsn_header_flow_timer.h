/* SipsnHeaderFlowTimer: the Flow-Timer header field, RFC 5626 section 10; how long a server waits for a keep-alive.
 *
 * Example: Flow-Timer: 120
 *
 *     Flow-Timer = 1*DIGIT
 *
 *     flow timer   seconds, 0 or more; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_FLOW_TIMER_H
#define SIPSN_HEADER_FLOW_TIMER_H

#include "sipsn_delta_seconds.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderFlowTimer ), see sipsn_header.h */
typedef struct SipsnHeaderFlowTimer SipsnHeaderFlowTimer;

PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerCreateFrom( SipsnHeaderFlowTimer *source );
PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerRetain( SipsnHeaderFlowTimer *obj );
PB_API void                  sipsnHeaderFlowTimerRelease( SipsnHeaderFlowTimer *obj );
PB_API PbObj                *sipsnHeaderFlowTimerObj( SipsnHeaderFlowTimer *obj );
PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderFlowTimerSort( void );
PB_API PbString             *sipsnHeaderFlowTimerToString( SipsnHeaderFlowTimer *obj );
PB_API int64_t               sipsnHeaderFlowTimerCompare( SipsnHeaderFlowTimer *a, SipsnHeaderFlowTimer *b );
PB_API bool                  sipsnHeaderFlowTimerEquals( SipsnHeaderFlowTimer *a, SipsnHeaderFlowTimer *b );

PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderFlowTimerEncode( SipsnHeaderFlowTimer *hdr );
PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderFlowTimerEncodeToMessage( SipsnHeaderFlowTimer *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderFlowTimerPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderFlowTimerRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderFlowTimerStore( SipsnHeaderFlowTimer *hdr );
PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderFlowTimer *sipsnHeaderFlowTimerCreate( int64_t flowTimer );

PB_API int64_t sipsnHeaderFlowTimerFlowTimer( SipsnHeaderFlowTimer *hdr );
PB_API void    sipsnHeaderFlowTimerSetFlowTimer( SipsnHeaderFlowTimer **hdr, int64_t flowTimer );
/* ./dev lists: end */

PB_END_DECLS
#endif
