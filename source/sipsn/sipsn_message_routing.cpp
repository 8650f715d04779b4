// Replies, the top Via, routes, the hop count, and the identifiers of transactions and dialogs.
#include "sipsn_message_routing.h"

#include "sipsn_branch.h"
#include "sipsn_header_call_id.h"
#include "sipsn_header_cseq.h"
#include "sipsn_header_from.h"
#include "sipsn_header_max_forwards.h"
#include "sipsn_header_record_route.h"
#include "sipsn_header_route.h"
#include "sipsn_header_to.h"
#include "sipsn_header_via.h"
#include "sipsn_host.h"
#include "sipsn_message_internal.h"
#include "sipsn_port.h"
#include "sipsn_tag.h"
#include "sipsn_text_writer.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

using sipsn::TextWriter;

// ---- Lists of values -------------------------------------------------------------------------------

namespace {

// The functions of a header type that is a list, for what is done to its first value.
template< class Header, class Value > struct List
{
    bool ( *present )( SipsnMessage *msg );
    Header *( *create )();
    Header *( *tryDecode )( SipsnMessage *msg );
    void ( *encode )( Header *hdr, SipsnMessage **msg );
    void ( *remove )( SipsnMessage **msg );
    int64_t ( *length )( Header *hdr );
    Value *( *tryDecodeAt )( Header *hdr, int64_t index );
    void ( *prepend )( Header **hdr, Value *value );
    void ( *delAt )( Header **hdr, int64_t index );

    Value *TryFirst( Header *hdr ) const { return hdr && length( hdr ) > 0 ? tryDecodeAt( hdr, 0 ) : nullptr; }
    Value *TryTop( SipsnMessage *msg ) const { return TryFirst( pb::Ref{ tryDecode( msg ) }.Get() ); }

    Value *TryPop( SipsnMessage **msg ) const
    {
        pb::Ref hdr{ tryDecode( *msg ) };
        pb::Ref top{ TryFirst( hdr.Get() ) };
        if( !top ) return nullptr;
        delAt( hdr.Slot(), 0 );
        if( length( hdr.Get() ) > 0 )
            encode( hdr.Get(), msg );
        else
            remove( msg );
        return top.Detach();
    }

    bool TryPush( SipsnMessage **msg, Value *value ) const
    {
        pb::Ref hdr{ present( *msg ) ? tryDecode( *msg ) : create() };
        if( !hdr ) return false;
        prepend( hdr.Slot(), value );
        encode( hdr.Get(), msg );
        return true;
    }
};

#define LIST_OF( Family, Items, Item )                                                                                 \
    {                                                                                                                  \
        .present = sipsnHeader##Family##PresentInMessage, .create = sipsnHeader##Family##Create,                       \
        .tryDecode = sipsnHeader##Family##TryDecodeFromMessage, .encode = sipsnHeader##Family##EncodeToMessage,        \
        .remove = sipsnHeader##Family##RemoveFromMessage, .length = sipsnHeader##Family##Items##Length,                \
        .tryDecodeAt = sipsnHeader##Family##TryDecode##Item##At, .prepend = sipsnHeader##Family##Prepend##Item,        \
        .delAt = sipsnHeader##Family##Del##Item##At                                                                    \
    }

constexpr List< SipsnHeaderVia, SipsnVia > vias = LIST_OF( Via, Vias, Via );

constexpr List< SipsnHeaderRoute, SipsnRoute >       routes       = LIST_OF( Route, Routes, Route );
constexpr List< SipsnHeaderRecordRoute, SipsnRoute > recordRoutes = LIST_OF( RecordRoute, Routes, Route );

constexpr const char cookie[]           = "z9hG4bK"; // RFC 3261 section 8.1.1.7
constexpr int64_t    initialMaxForwards = 70;        // section 8.1.1.6

} // namespace

// ---- Replies ---------------------------------------------------------------------------------------

// Copies a field, which may be absent.
static void CopyHeader( SipsnMessage **reply, SipsnMessage *request, const char *name )
{
    pb::Ref header{ sipsnMessageHeaderCstr( request, name, -1 ) };
    if( header ) sipsnMessageSetHeader( reply, header.Get() );
}

static bool CanBeAnswered( SipsnMessage *msg )
{
    if( !sipsnMessageIsRequest( msg ) || pbStringEqualsCstr( msg->fragment->requestMethod, "ACK", -1 ) ) return false;
    for( const char *name : { "From", "To", "Call-Id", "Cseq" } )
        if( !sipsnMessageHasHeaderCstr( msg, name, -1 ) ) return false;
    return bool( pb::Ref{ sipsnMessageTopVia( msg ) } );
}

SipsnMessage *sipsnMessageCreateReply( SipsnMessage *request, int64_t sc )
{
    PB_ASSERT( request );
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    if( !CanBeAnswered( request ) ) return nullptr;
    pb::Ref reply{ sipsnMessageCreateResponse( pb::Ref{ sipsnVersionCreateSip20() }.Get(), sc ) };
    for( const char *name : { "Via", "From", "To", "Call-Id", "Cseq" } ) CopyHeader( reply.Slot(), request, name );
    if( sc == 100 ) CopyHeader( reply.Slot(), request, "Timestamp" );
    if( sc > 100 && sc < 300 ) CopyHeader( reply.Slot(), request, "Record-Route" );
    return reply.Detach();
}

bool sipsnMessageAddToTag( SipsnMessage **msg, PbString *tag )
{
    PB_ASSERT_SLOT( msg );
    PB_ASSERT( sipsnTagOk( tag ) );
    pb::Ref to{ sipsnHeaderToTryDecodeFromMessage( *msg ) };
    if( !to ) return false;
    if( sipsnHeaderToHasTag( to.Get() ) ) return true;
    sipsnHeaderToSetTag( to.Slot(), tag );
    sipsnHeaderToEncodeToMessage( to.Get(), msg );
    return true;
}

// RFC 3261 section 18.1.1, RFC 4168, RFC 7118.
static int64_t DefaultPort( SipsnVia *via )
{
    static constexpr struct
    {
        const char *transport;
        int64_t     port;
    } others[] = { { "tls", 5061 }, { "tls-sctp", 5061 }, { "ws", 80 }, { "wss", 443 } };

    pb::Ref transport{ sipsnViaTransport( via ) };
    for( const auto &other : others )
        if( pbStringEqualsCstr( transport.Get(), other.transport, -1 ) ) return other.port;
    return 5060;
}

static int64_t SentByPort( SipsnVia *via ) { return sipsnViaHasPort( via ) ? sipsnViaPort( via ) : DefaultPort( via ); }

// The port of rport, set or decoded, which is a generic parameter; -1 when there is none.
static int64_t RportOf( SipsnVia *via )
{
    if( sipsnViaHasRportNumeric( via ) ) return sipsnViaRportNumeric( via );
    pb::Ref params{ sipsnViaGenericParams( via ) };
    pb::Ref value{ sipsnGenericParamsParamValueNormalizedCstr( params.Get(), "rport", -1 ) };
    return value ? sipsn___PortTryDecode( value->chs, value->length ) : -1;
}

static PbString *HostOfAddress( InAddress *address )
{
    pb::Ref text{ inAddressToStringShrink( address ) };
    if( inAddressIsV4( address ) ) return text.Detach();
    return pbStringCreateFromFormatCstr( "[%s]", -1, text.Get() );
}

static PbString *DestinationOf( SipsnVia *via, int64_t &port )
{
    pb::Ref    transport{ sipsnViaTransport( via ) };
    pb::Ref    received{ sipsnViaReceived( via ) };
    const bool isUdp = pbStringEqualsCstr( transport.Get(), "udp", -1 );
    port             = SentByPort( via );
    if( isUdp && sipsnViaHasMaddr( via ) ) return sipsnViaMaddr( via );
    if( !received ) return sipsnViaHost( via );
    if( const int64_t rport = RportOf( via ); isUdp && rport >= 0 ) port = rport;
    return HostOfAddress( received.Get() );
}

PbString *sipsnMessageReplyDestination( SipsnMessage *msg, int64_t *port )
{
    PB_ASSERT( msg );
    int64_t found = -1;
    pb::Ref via{ sipsnMessageTopVia( msg ) };
    pb::Ref host{ via ? DestinationOf( via.Get(), found ) : nullptr };
    if( port ) *port = found;
    return host.Detach();
}

// ---- Via -------------------------------------------------------------------------------------------

SipsnVia *sipsnMessageTopVia( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return vias.TryTop( msg );
}

SipsnVia *sipsnMessagePopVia( SipsnMessage **msg )
{
    PB_ASSERT_SLOT( msg );
    return vias.TryPop( msg );
}

bool sipsnMessagePushVia( SipsnMessage **msg, SipsnVia *via, PbString *unique )
{
    PB_ASSERT_SLOT( msg );
    PB_ASSERT( via );
    PB_ASSERT( sipsnBranchOk( unique ) );
    pb::Ref branch{ pbStringCreateFromCstr( cookie, -1 ) };
    pbStringAppend( branch.Slot(), unique );
    pb::Ref top{ sipsnViaRetain( via ) };
    sipsnViaSetBranch( top.Slot(), branch.Get() );
    return vias.TryPush( msg, top.Get() );
}

// Whether the host that a client gives is the address; a name never is.
static bool IsSentBy( SipsnVia *via, InAddress *address )
{
    pb::Ref       host{ sipsnViaHost( via ) };
    const int64_t bracket = host->chs[ 0 ] == '[' ? 1 : 0;
    pb::Ref       sentBy{ inAddressTryCreateFromChars( host->chs + bracket, host->length - 2 * bracket ) };
    return sentBy && inAddressEquals( sentBy.Get(), address );
}

bool sipsnMessageSetSource( SipsnMessage **msg, InAddress *source, int64_t port )
{
    PB_ASSERT_SLOT( msg );
    PB_ASSERT( source );
    PB_ASSERT( sipsnPortOk( port ) );
    pb::Ref hdr{ sipsnMessageIsRequest( *msg ) ? sipsnHeaderViaTryDecodeFromMessage( *msg ) : nullptr };
    pb::Ref via{ vias.TryFirst( hdr.Get() ) };
    if( !via ) return false;

    const bool wantsPort = sipsnViaHasRport( via.Get() ) || RportOf( via.Get() ) >= 0;
    const bool isSentBy  = IsSentBy( via.Get(), source );
    if( isSentBy && !wantsPort && !sipsnViaHasReceived( via.Get() ) ) return true;
    if( wantsPort ) sipsnViaSetRportNumeric( via.Slot(), port );
    if( isSentBy && !wantsPort )
        sipsnViaDelReceived( via.Slot() );
    else
        sipsnViaSetReceived( via.Slot(), source );
    sipsnHeaderViaSetViaAt( hdr.Slot(), 0, via.Get() );
    sipsnHeaderViaEncodeToMessage( hdr.Get(), msg );
    return true;
}

// ---- Routes ----------------------------------------------------------------------------------------

SipsnRoute *sipsnMessageTopRoute( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return routes.TryTop( msg );
}

SipsnRoute *sipsnMessagePopRoute( SipsnMessage **msg )
{
    PB_ASSERT_SLOT( msg );
    return routes.TryPop( msg );
}

bool sipsnMessagePushRecordRoute( SipsnMessage **msg, SipsnRoute *route )
{
    PB_ASSERT_SLOT( msg );
    PB_ASSERT( route );
    return recordRoutes.TryPush( msg, route );
}

// ---- The hop count ---------------------------------------------------------------------------------

int64_t sipsnMessageDecrementMaxForwards( SipsnMessage **msg )
{
    PB_ASSERT_SLOT( msg );
    if( !sipsnMessageIsRequest( *msg ) ) return -1;
    if( !sipsnHeaderMaxForwardsPresentInMessage( *msg ) ) {
        sipsnHeaderMaxForwardsEncodeToMessage( pb::Ref{ sipsnHeaderMaxForwardsCreate( initialMaxForwards ) }.Get(),
                                               msg );
        return SIPSN_MAX_FORWARDS_ADDED;
    }
    pb::Ref hdr{ sipsnHeaderMaxForwardsTryDecodeFromMessage( *msg ) };
    if( !hdr ) return SIPSN_MAX_FORWARDS_MALFORMED;
    const int64_t left = sipsnHeaderMaxForwardsMaxForwards( hdr.Get() );
    if( left == 0 ) return SIPSN_MAX_FORWARDS_ZERO;
    sipsnHeaderMaxForwardsSetMaxForwards( hdr.Slot(), left - 1 );
    sipsnHeaderMaxForwardsEncodeToMessage( hdr.Get(), msg );
    return SIPSN_MAX_FORWARDS_DECREMENTED;
}

// ---- Transactions and dialogs ----------------------------------------------------------------------

// The fields of an identifier are separated by single blanks, which only the last one can hold. A missing tag is empty.

// Takes over the reference, which may be null.
static void WriteLower( TextWriter &out, PbString *owned )
{
    pb::Ref text{ owned };
    if( text ) out.Take( sipsn::ToLower( text.Get() ) );
}

static bool HasCookie( PbString *branch )
{
    sipsn::Cursor in{ branch->chs, branch->length };
    return in.Keyword( cookie ) && !in.AtEnd();
}

// The method of the request that made a message's transaction, a new reference; null when CSeq does not decode.
static PbString *TransactionMethod( SipsnMessage *msg )
{
    pb::Ref method{ sipsnMessageRequestMethod( msg ) };
    if( method && pbStringEqualsCstr( method.Get(), "ACK", -1 ) ) return pbStringCreateFromCstr( "INVITE", -1 );
    if( method ) return method.Detach();
    pb::Ref cseq{ sipsnHeaderCseqTryDecodeFromMessage( msg ) };
    return cseq ? sipsnHeaderCseqMethod( cseq.Get() ) : nullptr;
}

PbString *sipsnMessageClientTransactionKey( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    pb::Ref via{ sipsnMessageTopVia( msg ) };
    pb::Ref method{ TransactionMethod( msg ) };
    if( !via || !method || !sipsnViaHasBranch( via.Get() ) ) return nullptr;
    return sipsn::TextOf( [ & ]( TextWriter &out ) {
        WriteLower( out, sipsnViaBranch( via.Get() ) );
        out.Char( ' ' );
        out.Text( method.Get() );
    } );
}

static PbString *Rfc2543Key( SipsnMessage *msg, SipsnVia *via, PbString *method )
{
    pb::Ref from{ sipsnHeaderFromTryDecodeFromMessage( msg ) };
    pb::Ref to{ sipsnHeaderToTryDecodeFromMessage( msg ) };
    pb::Ref callId{ sipsnHeaderCallIdTryDecodeFromMessage( msg ) };
    pb::Ref cseq{ sipsnHeaderCseqTryDecodeFromMessage( msg ) };
    if( !from || !to || !callId || !cseq ) return nullptr;
    return sipsn::TextOf( [ & ]( TextWriter &out ) {
        out.Text( method );
        out.Char( ' ' );
        out.Text( msg->fragment->requestIri );
        out.Char( ' ' );
        WriteLower( out, sipsnHeaderToTag( to.Get() ) );
        out.Char( ' ' );
        WriteLower( out, sipsnHeaderFromTag( from.Get() ) );
        out.Char( ' ' );
        out.Take( sipsnHeaderCallIdCallId( callId.Get() ) );
        out.Char( ' ' );
        out.Int( sipsnHeaderCseqCseq( cseq.Get() ) );
        out.Char( ' ' );
        out.Take( sipsnViaToString( via ) );
    } );
}

PbString *sipsnMessageServerTransactionKey( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    pb::Ref via{ sipsnMessageTopVia( msg ) };
    pb::Ref method{ TransactionMethod( msg ) };
    if( !via || !method ) return nullptr;
    pb::Ref branch{ sipsnViaBranch( via.Get() ) };
    if( !branch || !HasCookie( branch.Get() ) )
        return sipsnMessageIsRequest( msg ) ? Rfc2543Key( msg, via.Get(), method.Get() ) : nullptr;
    return sipsn::TextOf( [ & ]( TextWriter &out ) {
        WriteLower( out, branch.Detach() );
        out.Char( ' ' );
        WriteLower( out, sipsnViaHost( via.Get() ) );
        out.Char( ':' );
        out.Int( SentByPort( via.Get() ) );
        out.Char( ' ' );
        out.Text( method.Get() );
    } );
}

PbString *sipsnMessageDialogId( SipsnMessage *msg, bool uas )
{
    PB_ASSERT( msg );
    pb::Ref callId{ sipsnHeaderCallIdTryDecodeFromMessage( msg ) };
    pb::Ref from{ sipsnHeaderFromTryDecodeFromMessage( msg ) };
    pb::Ref to{ sipsnHeaderToTryDecodeFromMessage( msg ) };
    if( !callId || !from || !to ) return nullptr;
    const int64_t sc      = sipsnMessageResponseStatusCode( msg );
    const bool    mayLack = uas || ( sc >= 200 && sc < 300 ); // the remote side, its tag
    pb::Ref       local{ uas ? sipsnHeaderToTag( to.Get() ) : sipsnHeaderFromTag( from.Get() ) };
    pb::Ref       remote{ uas ? sipsnHeaderFromTag( from.Get() ) : sipsnHeaderToTag( to.Get() ) };
    if( !local || ( !remote && !mayLack ) ) return nullptr;
    return sipsn::TextOf( [ & ]( TextWriter &out ) {
        out.Take( sipsnHeaderCallIdCallId( callId.Get() ) );
        out.Char( ' ' );
        WriteLower( out, local.Detach() );
        out.Char( ' ' );
        WriteLower( out, remote.Detach() );
    } );
}
