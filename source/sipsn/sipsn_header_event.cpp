// SipsnHeaderEvent: the Event header field, RFC 6665 section 8.2.1.
#include "sipsn_header_event.h"

#include "sipsn_header_frame.h"
#include "sipsn_header_internal.h"
#include "sipsn_skip_internal.h"

using sipsn::Cursor, sipsn::Span, sipsn::StringFrom;

struct SipsnHeaderEvent
{
    PbObj               obj;
    PbString           *eventType;
    PbString           *id;
    SipsnGenericParams *genericParams;

    using Members =
        pb::Members< &SipsnHeaderEvent::eventType, &SipsnHeaderEvent::id, &SipsnHeaderEvent::genericParams >;
};

SIPSN_DEFINE_NAME( sipsn___HeaderEvent, sipsn___PbsEvent, "Event" )

static SipsnHeaderEvent *TryDecode( PbString *line );
static PbString         *EncodeLine( SipsnHeaderEvent *hdr );

static constexpr sipsn::Single< SipsnHeaderEvent > shape{ .tryDecode = TryDecode, .encode = EncodeLine };

SIPSN_DEFINE_HEADER( SipsnHeaderEvent, sipsnHeaderEvent, SIPSN_HEADER_EVENT, sipsn___PbsEvent, shape )

// Takes over the reference.
static SipsnHeaderEvent *CreateOwning( PbString *eventType )
{
    SipsnHeaderEvent *hdr = pb::New< SipsnHeaderEvent >();
    hdr->eventType        = eventType;
    hdr->genericParams    = sipsnGenericParamsCreate();
    return hdr;
}

SipsnHeaderEvent *sipsnHeaderEventCreate( PbString *eventType )
{
    PB_ASSERT( sipsnEventTypeOk( eventType ) );
    return CreateOwning( pb::Retain( eventType ) );
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
void      sipsnHeaderEventDelId( SipsnHeaderEvent **hdr ) { PB_DEL( hdr, id ); }
void      sipsnHeaderEventSetId( SipsnHeaderEvent **hdr, PbString *token )
{
    PB_SET( hdr, id, sipsnTokenOk( token ), pb::Retain( token ) );
}

SipsnGenericParams *sipsnHeaderEventGenericParams( SipsnHeaderEvent *hdr ) { return PB_GET( hdr, genericParams ); }
void                sipsnHeaderEventSetGenericParams( SipsnHeaderEvent **hdr, SipsnGenericParams *genericParams )
{
    PB_SET( hdr, genericParams, genericParams, pb::Retain( genericParams ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeTypedParam( Cursor &in, SipsnHeaderEvent *hdr )
{
    return sipsn::TakeText( in, "id", sipsn___SkipToken, hdr->id );
}

static SipsnHeaderEvent *TryDecode( PbString *line )
{
    Cursor     in{ line->chs, line->length };
    const Span eventType = in.Take( sipsn___SkipEventType );
    if( !eventType ) return nullptr;

    pb::Ref    hdr{ CreateOwning( eventType.ToString() ) };
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, hdr.Get() ); };
    return sipsn::TryDecodeParams( in, &hdr->genericParams, takeTyped ) ? hdr.Detach() : nullptr;
}

static PbString *EncodeLine( SipsnHeaderEvent *hdr )
{
    return sipsn::TextOf( [ & ]( auto &out ) {
        out.Text( hdr->eventType );
        sipsn::ParamWriter params{ out, hdr->genericParams };
        params.Text( "id", hdr->id );
        params.Generic();
    } );
}
