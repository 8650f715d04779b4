/* SipsnHeaderEvent: the Event header field, RFC 6665 section 8.2.1; an event package and which of several subscriptions
 * to it.
 *
 * Example: Event: dialog;id=q4;include-session-description
 *
 *     Event = event-type *( ";" ( "id" "=" token / generic-param ) )
 *
 *     event type       kept as written; never absent
 *     id               a token, kept as written; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. Of several ids the last counts; one
 * that is not a token is a generic parameter. Getters return new references, or null when the member is absent. Setters
 * and deleters replace *hdr by a private copy when it is shared. A null or invalid argument aborts. The Cstr and Wcstr
 * forms take text with its length, -1 meaning up to the terminating zero. */
#ifndef SIPSN_HEADER_EVENT_H
#define SIPSN_HEADER_EVENT_H

#include "sipsn_event_type.h"
#include "sipsn_generic_params.h"
#include "sipsn_header.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderEvent ), see sipsn_header.h */
typedef struct SipsnHeaderEvent SipsnHeaderEvent;

PB_API SipsnHeaderEvent *sipsnHeaderEventCreateFrom( SipsnHeaderEvent *source );
PB_API SipsnHeaderEvent *sipsnHeaderEventRetain( SipsnHeaderEvent *obj );
PB_API void              sipsnHeaderEventRelease( SipsnHeaderEvent *obj );
PB_API PbObj            *sipsnHeaderEventObj( SipsnHeaderEvent *obj );
PB_API SipsnHeaderEvent *sipsnHeaderEventFrom( PbObj *obj );
PB_API PbSort           *sipsnHeaderEventSort( void );
PB_API PbString         *sipsnHeaderEventToString( SipsnHeaderEvent *obj );
PB_API int64_t           sipsnHeaderEventCompare( SipsnHeaderEvent *a, SipsnHeaderEvent *b );
PB_API bool              sipsnHeaderEventEquals( SipsnHeaderEvent *a, SipsnHeaderEvent *b );

PB_API SipsnHeaderEvent   *sipsnHeaderEventTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderEventEncode( SipsnHeaderEvent *hdr );
PB_API SipsnHeaderEvent   *sipsnHeaderEventTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderEventEncodeToMessage( SipsnHeaderEvent *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderEventPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderEventRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderEventStore( SipsnHeaderEvent *hdr );
PB_API SipsnHeaderEvent   *sipsnHeaderEventTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderEvent *sipsnHeaderEventCreate( PbString *eventType );
PB_API SipsnHeaderEvent *sipsnHeaderEventCreateCstr( const char *eventType, int64_t eventTypeLength );
PB_API SipsnHeaderEvent *sipsnHeaderEventCreateWcstr( const wchar_t *eventType, int64_t eventTypeLength );

PB_API PbString *sipsnHeaderEventEventType( SipsnHeaderEvent *hdr );
PB_API void      sipsnHeaderEventSetEventType( SipsnHeaderEvent **hdr, PbString *eventType );
PB_API void sipsnHeaderEventSetEventTypeCstr( SipsnHeaderEvent **hdr, const char *eventType, int64_t eventTypeLength );
PB_API void sipsnHeaderEventSetEventTypeWcstr( SipsnHeaderEvent **hdr, const wchar_t *eventType,
                                               int64_t eventTypeLength );

PB_API PbString *sipsnHeaderEventId( SipsnHeaderEvent *hdr );
PB_API bool      sipsnHeaderEventHasId( SipsnHeaderEvent *hdr );
PB_API void      sipsnHeaderEventDelId( SipsnHeaderEvent **hdr );
PB_API void      sipsnHeaderEventSetId( SipsnHeaderEvent **hdr, PbString *token );

PB_API SipsnGenericParams *sipsnHeaderEventGenericParams( SipsnHeaderEvent *hdr );
PB_API void sipsnHeaderEventSetGenericParams( SipsnHeaderEvent **hdr, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
