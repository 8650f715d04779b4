/* SipsnHeaderAllowEvents: the Allow-Events header field, RFC 6665 section 8.2.2; a set of event types.
 *
 * Example: Allow-Events: dialog,presence
 *
 * Event types are kept as written, and event types in different letter case are different. All are encoded into one
 * line. A header field without lines is no header. The Cstr and Wcstr forms take text with its length, -1 meaning up to
 * the terminating zero. */
#ifndef SIPSN_HEADER_ALLOW_EVENTS_H
#define SIPSN_HEADER_ALLOW_EVENTS_H

#include "sipsn_event_type.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderAllowEvents, sipsnHeaderAllowEvents )

PB_API SipsnHeaderAllowEvents *sipsnHeaderAllowEventsCreate( void );

SIPSN_DECLARE_SET( SipsnHeaderAllowEvents, sipsnHeaderAllowEvents, EventTypes, EventType, eventType )
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
