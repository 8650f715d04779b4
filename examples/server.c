/* A server that takes every call and ends it with BYE, over UDP on loopback. It prints its port. */
#define _POSIX_C_SOURCE 200809L
#include "udp.h"

typedef struct Server
{
    int                 udp;
    SipsnHeaderContact *contact;
    SipsnHeaderAllow   *allow;
    PbDict             *replies; /* the last one to each transaction, for requests that come again */
    PbDict             *dialogs;
} Server;

enum
{
    mostReplies = 1000 /* then all is forgotten */
};

static bool startServer( Server *server )
{
    static const char *const methods[] = { "ACK", "BYE", "CANCEL", "INVITE", "OPTIONS" };

    int64_t port;
    server->udp = udpOpen( &port );
    if( server->udp < 0 ) return false;
    PbString     *iri     = pbStringCreateFromFormatCstr( "sip:server@127.0.0.1:%i", -1, port );
    SipsnContact *contact = sipsnContactCreate( iri );
    server->contact       = sipsnHeaderContactCreate();
    sipsnHeaderContactAppendContact( &server->contact, contact );
    server->allow = sipsnHeaderAllowCreate();
    for( size_t at = 0; at < sizeof methods / sizeof *methods; ++at )
        sipsnHeaderAllowSetMethodCstr( &server->allow, methods[ at ], -1 );
    server->replies = pbDictCreate();
    server->dialogs = pbDictCreate();
    sipsnContactRelease( contact );
    pbStringRelease( iri );
    return true;
}

static void stopServer( Server *server )
{
    pbDictRelease( server->dialogs );
    pbDictRelease( server->replies );
    sipsnHeaderAllowRelease( server->allow );
    sipsnHeaderContactRelease( server->contact );
}

/* Whether a CANCEL is about an INVITE that was answered, RFC 3261 section 9.2. */
static bool cancelsSomething( const Server *server, SipsnMessage *cancel )
{
    SipsnMessage *invite = sipsnMessageRetain( cancel );
    sipsnMessageSetRequestMethodCstr( &invite, "INVITE", -1 );
    PbString *key   = sipsnMessageServerTransactionKey( invite );
    bool      found = key && pbDictHasStringKey( server->replies, key );
    drop( pbStringObj( key ) );
    sipsnMessageRelease( invite );
    return found;
}

/* The final answer. `dialog` is null outside of a dialog. */
static int64_t statusOf( const Server *server, SipsnMessage *request, PbString *method, PbString *dialog )
{
    if( pbStringEqualsCstr( method, "CANCEL", -1 ) ) return cancelsSomething( server, request ) ? 200 : 481;
    if( dialog && !pbDictHasStringKey( server->dialogs, dialog ) ) return 481;
    if( pbStringEqualsCstr( method, "BYE", -1 ) ) return dialog ? 200 : 481;
    return pbStringEqualsCstr( method, "INVITE", -1 ) || pbStringEqualsCstr( method, "OPTIONS", -1 ) ? 200 : 405;
}

/* Answers, and keeps the answer under the key of the transaction. Returns it, or null when there can be none. */
static SipsnMessage *reply( Server *server, SipsnMessage *request, int64_t sc, PbString *key )
{
    SipsnMessage *response = sipsnMessageCreateReply( request, sc );
    if( !response ) return NULL;
    PbString *tag = hashOf( key );
    sipsnMessageAddToTag( &response, tag );
    if( sc < 300 ) sipsnHeaderContactEncodeToMessage( server->contact, &response );
    sipsnHeaderAllowEncodeToMessage( server->allow, &response );
    udpReply( server->udp, response );
    pbDictSetStringKey( &server->replies, key, sipsnMessageObj( response ) );
    pbStringRelease( tag );
    return response;
}

static void answer( Server *server, SipsnMessage *request, PbString *method, PbString *key )
{
    PbString     *dialog   = sipsnMessageDialogId( request, true );
    int64_t       sc       = statusOf( server, request, method, dialog );
    bool          isInvite = pbStringEqualsCstr( method, "INVITE", -1 );
    SipsnMessage *ringing  = isInvite && sc == 200 ? reply( server, request, 180, key ) : NULL;
    SipsnMessage *final    = reply( server, request, sc, key );
    PbString     *made     = final ? sipsnMessageDialogId( final, true ) : NULL;
    if( made && isInvite && sc == 200 ) pbDictSetStringKey( &server->dialogs, made, pbStringObj( made ) );
    if( made && pbStringEqualsCstr( method, "BYE", -1 ) ) pbDictDelStringKey( &server->dialogs, made );
    drop( pbStringObj( made ) );
    drop( sipsnMessageObj( final ) );
    drop( sipsnMessageObj( ringing ) );
    drop( pbStringObj( dialog ) );
}

static void receive( Server *server, SipsnMessage *request )
{
    PbString *method = sipsnMessageRequestMethod( request );
    PbString *key    = sipsnMessageServerTransactionKey( request );
    PbObj    *kept   = key ? pbDictStringKey( server->replies, key ) : NULL;
    if( pbDictLength( server->replies ) >= mostReplies ) {
        pbDictClear( &server->replies );
        pbDictClear( &server->dialogs );
    }
    if( key && !pbStringEqualsCstr( method, "ACK", -1 ) ) {
        if( kept )
            udpReply( server->udp, sipsnMessageFrom( kept ) );
        else
            answer( server, request, method, key );
    }
    drop( kept );
    drop( pbStringObj( key ) );
    pbStringRelease( method );
}

int main( void )
{
    Server server;
    pbModuleStart( sipsnModule() );
    if( !startServer( &server ) ) return 2;
    for( SipsnMessage *msg; ( msg = udpReceive( server.udp ) ); sipsnMessageRelease( msg ) )
        if( sipsnMessageIsRequest( msg ) ) receive( &server, msg );
    stopServer( &server );
    pbModuleStop( sipsnModule() );
    return 0;
}
