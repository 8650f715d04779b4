/* A stateless proxy in front of one server, RFC 3261 section 16.11, over UDP on loopback. It prints its port.
 *
 *     proxy SERVER_PORT */
#define _POSIX_C_SOURCE 200809L
#include "udp.h"

#include <stdlib.h>

typedef struct Proxy
{
    int         udp;
    int64_t     port;
    int64_t     serverPort;
    PbString   *host;
    SipsnVia   *via;
    SipsnRoute *route;
} Proxy;

static bool startProxy( Proxy *proxy, int64_t serverPort )
{
    proxy->udp = udpOpen( &proxy->port );
    if( proxy->udp < 0 ) return false;
    proxy->serverPort      = serverPort;
    proxy->host            = pbStringCreateFromCstr( "127.0.0.1", -1 );
    SipsnVersion *version  = sipsnVersionCreateSip20();
    PbString     *protocol = pbStringCreateFromCstr( "udp", -1 );
    PbString     *iri      = pbStringCreateFromFormatCstr( "sip:%s:%i;lr", -1, proxy->host, proxy->port );
    proxy->via             = sipsnViaCreateWithPort( version, protocol, proxy->host, proxy->port );
    proxy->route           = sipsnRouteCreate( iri );
    pbStringRelease( iri );
    pbStringRelease( protocol );
    sipsnVersionRelease( version );
    return true;
}

static void stopProxy( Proxy *proxy )
{
    sipsnRouteRelease( proxy->route );
    sipsnViaRelease( proxy->via );
    pbStringRelease( proxy->host );
}

/* What makes the branch, the same for each copy of a request. A CANCEL has that of the INVITE which it cancels, RFC
 * 3261 section 9.1. Null when the request lacks what its transaction is told by. */
static PbString *tryUnique( SipsnMessage *request )
{
    SipsnMessage *first  = sipsnMessageRetain( request );
    PbString     *method = sipsnMessageRequestMethod( request );
    if( pbStringEqualsCstr( method, "CANCEL", -1 ) ) sipsnMessageSetRequestMethodCstr( &first, "INVITE", -1 );
    PbString *key    = sipsnMessageServerTransactionKey( first );
    PbString *unique = key ? hashOf( key ) : NULL;
    drop( pbStringObj( key ) );
    pbStringRelease( method );
    sipsnMessageRelease( first );
    return unique;
}

/* Answers in the server's stead. Nothing is kept, so each copy gets the same tag, section 8.2.7. */
static void refuse( const Proxy *proxy, SipsnMessage *request, int64_t sc, PbString *tag )
{
    SipsnMessage *reply = sipsnMessageCreateReply( request, sc );
    if( reply && sipsnMessageAddToTag( &reply, tag ) ) udpReply( proxy->udp, reply );
    drop( sipsnMessageObj( reply ) );
}

/* Takes the first Route away if it is the proxy itself, section 16.4. */
static void leaveRoute( const Proxy *proxy, SipsnMessage **request )
{
    SipsnRoute *top = sipsnMessageTopRoute( *request );
    if( top && sipsnRouteEquals( top, proxy->route ) ) sipsnRouteRelease( sipsnMessagePopRoute( request ) );
    drop( sipsnRouteObj( top ) );
}

/* Where the first Route or else the request's own URI says, section 16.6; the server when that is not on this host. */
static int64_t nextPort( const Proxy *proxy, SipsnMessage *request )
{
    SipsnRoute *top  = sipsnMessageTopRoute( request );
    SipsnUri   *uri  = top ? sipsnRouteTryDecodeUri( top ) : sipsnMessageTryDecodeRequestUri( request );
    PbString   *host = uri ? sipsnUriHost( uri ) : NULL;
    int64_t     port = host && pbStringEquals( host, proxy->host ) ? sipsnUriPort( uri ) : -1;
    drop( pbStringObj( host ) );
    drop( sipsnUriObj( uri ) );
    drop( sipsnRouteObj( top ) );
    return port > 0 && port <= 65535 ? port : proxy->serverPort;
}

static void forwardRequest( const Proxy *proxy, SipsnMessage **request )
{
    PbString *unique = tryUnique( *request );
    if( !unique ) return;
    int64_t hops = sipsnMessageDecrementMaxForwards( request );
    leaveRoute( proxy, request );
    if( hops == SIPSN_MAX_FORWARDS_ZERO )
        refuse( proxy, *request, 483, unique );
    else if( hops == SIPSN_MAX_FORWARDS_MALFORMED || !sipsnMessagePushRecordRoute( request, proxy->route ) )
        refuse( proxy, *request, 400, unique );
    else if( sipsnMessagePushVia( request, proxy->via, unique ) )
        udpSend( proxy->udp, *request, proxy->host, nextPort( proxy, *request ) );
    pbStringRelease( unique );
}

/* Takes its own Via away, and sends the response where the next one says, section 16.11. */
static void forwardResponse( const Proxy *proxy, SipsnMessage **response )
{
    SipsnVia *top  = sipsnMessagePopVia( response );
    PbString *host = top ? sipsnViaHost( top ) : NULL;
    if( host && pbStringEquals( host, proxy->host ) && sipsnViaPort( top ) == proxy->port )
        udpReply( proxy->udp, *response );
    drop( pbStringObj( host ) );
    drop( sipsnViaObj( top ) );
}

int main( int argc, char **argv )
{
    Proxy proxy;
    pbModuleStart( sipsnModule() );
    if( argc != 2 || !startProxy( &proxy, atoi( argv[ 1 ] ) ) ) return 2;
    for( SipsnMessage *msg; ( msg = udpReceive( proxy.udp ) ); sipsnMessageRelease( msg ) )
        if( sipsnMessageIsRequest( msg ) )
            forwardRequest( &proxy, &msg );
        else
            forwardResponse( &proxy, &msg );
    stopProxy( &proxy );
    pbModuleStop( sipsnModule() );
    return 0;
}
