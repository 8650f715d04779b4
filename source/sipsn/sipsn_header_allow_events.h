/* SipsnHeaderAllowEvents: the Allow-Events header field, RFC 6665 section 8.2.2; a set of event types.
 *
 * Example: Allow-Events: dialog,presence
 *
 * Event types are kept as written, and event types in different letter case are different. All are encoded into one
 * line. A header field without lines does not decode. The Cstr and Wcstr forms take text with its length, -1 meaning up
 * to the terminating zero. */
#ifndef SIPSN_HEADER_ALLOW_EVENTS_H
#define SIPSN_HEADER_ALLOW_EVENTS_H

#include "sipsn_event_type.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAllowEvents ), see sipsn_header.h */
typedef struct SipsnHeaderAllowEvents SipsnHeaderAllowEvents;

PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsCreateFrom( SipsnHeaderAllowEvents *source );
PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsRetain( SipsnHeaderAllowEvents *obj );
PB_API void                    sipsnHeaderAllowEventsRelease( SipsnHeaderAllowEvents *obj );
PB_API PbObj                  *sipsnHeaderAllowEventsObj( SipsnHeaderAllowEvents *obj );
PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderAllowEventsSort( void );
PB_API PbString               *sipsnHeaderAllowEventsToString( SipsnHeaderAllowEvents *obj );
PB_API int64_t                 sipsnHeaderAllowEventsCompare( SipsnHeaderAllowEvents *a, SipsnHeaderAllowEvents *b );
PB_API bool                    sipsnHeaderAllowEventsEquals( SipsnHeaderAllowEvents *a, SipsnHeaderAllowEvents *b );

PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderAllowEventsEncode( SipsnHeaderAllowEvents *hdr );
PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderAllowEventsEncodeToMessage( SipsnHeaderAllowEvents *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderAllowEventsPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderAllowEventsRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderAllowEventsStore( SipsnHeaderAllowEvents *hdr );
PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsCreate( void );

/* ./dev lists: SET( EventTypes, EventType ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderAllowEventsEventTypesLength( SipsnHeaderAllowEvents *hdr );
PB_API PbString *sipsnHeaderAllowEventsEventTypeAt( SipsnHeaderAllowEvents *hdr, int64_t index );
PB_API PbVector *sipsnHeaderAllowEventsEventTypesVector( SipsnHeaderAllowEvents *hdr );
PB_API void      sipsnHeaderAllowEventsSetEventTypesVector( SipsnHeaderAllowEvents **hdr, PbVector *vec );
PB_API bool      sipsnHeaderAllowEventsHasEventType( SipsnHeaderAllowEvents *hdr, PbString *eventType );
PB_API void      sipsnHeaderAllowEventsSetEventType( SipsnHeaderAllowEvents **hdr, PbString *eventType );
PB_API void      sipsnHeaderAllowEventsDelEventType( SipsnHeaderAllowEvents **hdr, PbString *eventType );
PB_API void      sipsnHeaderAllowEventsClearEventTypes( SipsnHeaderAllowEvents **hdr );
/* ./dev lists: end */

PB_API bool sipsnHeaderAllowEventsHasEventTypeCstr( SipsnHeaderAllowEvents *hdr, const char *eventType,
                                                    int64_t eventTypeLength );
PB_API bool sipsnHeaderAllowEventsHasEventTypeWcstr( SipsnHeaderAllowEvents *hdr, const wchar_t *eventType,
                                                     int64_t eventTypeLength );
PB_API void sipsnHeaderAllowEventsSetEventTypeCstr( SipsnHeaderAllowEvents **hdr, const char *eventType,
                                                    int64_t eventTypeLength );
PB_API void sipsnHeaderAllowEventsSetEventTypeWcstr( SipsnHeaderAllowEvents **hdr, const wchar_t *eventType,
                                                     int64_t eventTypeLength );
PB_API void sipsnHeaderAllowEventsDelEventTypeCstr( SipsnHeaderAllowEvents **hdr, const char *eventType,
                                                    int64_t eventTypeLength );
PB_API void sipsnHeaderAllowEventsDelEventTypeWcstr( SipsnHeaderAllowEvents **hdr, const wchar_t *eventType,
                                                     int64_t eventTypeLength );

PB_END_DECLS
#endif
