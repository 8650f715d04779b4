// SipsnHeaderAllowEvents: the Allow-Events header field, RFC 6665 section 8.2.2.
#include "sipsn_header_allow_events.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderAllowEvents
{
    PbObj   obj;
    PbDict *items; // each to itself

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::Items( "eventTypes", &SipsnHeaderAllowEvents::items, sipsn::rule::eventType ) };
    }
};

SIPSN_DEFINE_NAME( AllowEvents, "Allow-Events" )

static constexpr sipsn::Set< SipsnHeaderAllowEvents > shape{};

SIPSN_DEFINE_HEADER( AllowEvents, SIPSN_HEADER_ALLOW_EVENTS, shape )

static PbString *Key( PbString *eventType )
{
    PB_ASSERT( sipsnEventTypeOk( eventType ) );
    return pb::Retain( eventType );
}
SIPSN_DEFINE_SET( AllowEvents, EventTypes, EventType, eventType, Key )

SipsnHeaderAllowEvents *sipsnHeaderAllowEventsCreate( void ) { return shape.Create(); }

bool sipsnHeaderAllowEventsHasEventTypeCstr( SipsnHeaderAllowEvents *hdr, const char *eventType,
                                             int64_t eventTypeLength )
{
    return sipsnHeaderAllowEventsHasEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

bool sipsnHeaderAllowEventsHasEventTypeWcstr( SipsnHeaderAllowEvents *hdr, const wchar_t *eventType,
                                              int64_t eventTypeLength )
{
    return sipsnHeaderAllowEventsHasEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

void sipsnHeaderAllowEventsSetEventTypeCstr( SipsnHeaderAllowEvents **hdr, const char *eventType,
                                             int64_t eventTypeLength )
{
    sipsnHeaderAllowEventsSetEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

void sipsnHeaderAllowEventsSetEventTypeWcstr( SipsnHeaderAllowEvents **hdr, const wchar_t *eventType,
                                              int64_t eventTypeLength )
{
    sipsnHeaderAllowEventsSetEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

void sipsnHeaderAllowEventsDelEventTypeCstr( SipsnHeaderAllowEvents **hdr, const char *eventType,
                                             int64_t eventTypeLength )
{
    sipsnHeaderAllowEventsDelEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

void sipsnHeaderAllowEventsDelEventTypeWcstr( SipsnHeaderAllowEvents **hdr, const wchar_t *eventType,
                                              int64_t eventTypeLength )
{
    sipsnHeaderAllowEventsDelEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}
