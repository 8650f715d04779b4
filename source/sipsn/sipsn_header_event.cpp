// SipsnHeaderEvent: the Event header field, RFC 6665 section 8.2.1.
#include "sipsn_header_event.h"

#include "sipsn_header_frame.h"

using sipsn::StringFrom;

struct SipsnHeaderEvent
{
    PbObj               obj;
    PbString           *eventType;
    PbString           *id;
    SipsnGenericParams *genericParams;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "eventType", &SipsnHeaderEvent::eventType, sipsn::rule::eventType ),
            sipsn::TextParam( "id", &SipsnHeaderEvent::id, sipsn::rule::token ),
            sipsn::OtherParams( &SipsnHeaderEvent::genericParams ),
        };
    }
};

SIPSN_DEFINE_NAME( Event, "Event" )

static constexpr sipsn::LastLine< SipsnHeaderEvent, sipsn::Params< SipsnHeaderEvent > > shape{};

SIPSN_DEFINE_HEADER( Event, SIPSN_HEADER_EVENT, shape )

SipsnHeaderEvent *sipsnHeaderEventCreate( PbString *eventType )
{
    PB_ASSERT( sipsnEventTypeOk( eventType ) );
    return sipsn::NewWith( &SipsnHeaderEvent::eventType, pb::Retain( eventType ) );
}

SipsnHeaderEvent *sipsnHeaderEventCreateCstr( const char *eventType, int64_t eventTypeLength )
{
    return sipsnHeaderEventCreate( StringFrom( eventType, eventTypeLength ).Get() );
}

SipsnHeaderEvent *sipsnHeaderEventCreateWcstr( const wchar_t *eventType, int64_t eventTypeLength )
{
    return sipsnHeaderEventCreate( StringFrom( eventType, eventTypeLength ).Get() );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnHeaderEventEventType( SipsnHeaderEvent *hdr ) { return PB_GET( hdr, eventType ); }
void      sipsnHeaderEventSetEventType( SipsnHeaderEvent **hdr, PbString *eventType )
{
    PB_SET( hdr, eventType, sipsnEventTypeOk( eventType ), pb::Retain( eventType ) );
}

void sipsnHeaderEventSetEventTypeCstr( SipsnHeaderEvent **hdr, const char *eventType, int64_t eventTypeLength )
{
    sipsnHeaderEventSetEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

void sipsnHeaderEventSetEventTypeWcstr( SipsnHeaderEvent **hdr, const wchar_t *eventType, int64_t eventTypeLength )
{
    sipsnHeaderEventSetEventType( hdr, StringFrom( eventType, eventTypeLength ).Get() );
}

PbString *sipsnHeaderEventId( SipsnHeaderEvent *hdr ) { return PB_GET( hdr, id ); }
bool      sipsnHeaderEventHasId( SipsnHeaderEvent *hdr ) { return PB_HAS( hdr, id ); }
void      sipsnHeaderEventSetId( SipsnHeaderEvent **hdr, PbString *token )
{
    PB_SET( hdr, id, sipsnTokenOk( token ), pb::Retain( token ) );
}
void sipsnHeaderEventDelId( SipsnHeaderEvent **hdr ) { PB_DEL( hdr, id ); }

SipsnGenericParams *sipsnHeaderEventGenericParams( SipsnHeaderEvent *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderEventSetGenericParams( SipsnHeaderEvent **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}
