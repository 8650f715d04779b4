/* What proxy.c and server.c share: messages over UDP on loopback, until SIGTERM. */
#ifndef EXAMPLES_UDP_H
#define EXAMPLES_UDP_H

#include <sipsn/sipsn.h>

#include <arpa/inet.h>
#include <signal.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>

static volatile sig_atomic_t udpStopped;
static void                  udpStop( int number ) { udpStopped = number; }

/* A socket on a port that the system chooses and that is printed; -1 when there is none. */
static int udpOpen( int64_t *port )
{
    struct sockaddr_in address = { .sin_family = AF_INET, .sin_addr.s_addr = htonl( INADDR_LOOPBACK ) };
    socklen_t          length  = sizeof address;
    int                udp     = socket( AF_INET, SOCK_DGRAM, 0 );
    if( udp < 0 || bind( udp, (struct sockaddr *)&address, length ) != 0 ) return -1;
    getsockname( udp, (struct sockaddr *)&address, &length );
    *port = ntohs( address.sin_port );
    printf( "%d\n", (int)*port );
    fflush( stdout );
    sigaction( SIGTERM, &( struct sigaction ){ .sa_handler = udpStop }, NULL ); /* recvfrom is interrupted */
    return udp;
}

/* The next message, in which a request says where it came from; null when the program is to end. */
static SipsnMessage *udpReceive( int udp )
{
    static char        bytes[ 65536 ];
    struct sockaddr_in from;
    while( !udpStopped ) {
        socklen_t     fromLength = sizeof from;
        ssize_t       length     = recvfrom( udp, bytes, sizeof bytes, 0, (struct sockaddr *)&from, &fromLength );
        PbBuffer     *buffer     = pbBufferCreateFromBytesCopy( bytes, length > 0 ? length : 0 );
        SipsnMessage *msg        = sipsnMessageTryDecode( buffer );
        pbBufferRelease( buffer );
        if( !msg ) continue;

        char text[ INET_ADDRSTRLEN ];
        inet_ntop( AF_INET, &from.sin_addr, text, sizeof text );
        PbString  *chs    = pbStringCreateFromCstr( text, -1 );
        InAddress *source = inAddressTryCreateFromChars( pbStringBacking( chs ), pbStringLength( chs ) );
        sipsnMessageSetSource( &msg, source, ntohs( from.sin_port ) );
        inAddressRelease( source );
        pbStringRelease( chs );
        return msg;
    }
    return NULL;
}

/* Sends to an IPv4 address; to nobody when the host is anything else. */
static void udpSend( int udp, SipsnMessage *msg, PbString *host, int64_t port )
{
    struct sockaddr_in to                      = { .sin_family = AF_INET, .sin_port = htons( (uint16_t)port ) };
    char               text[ INET_ADDRSTRLEN ] = "";
    for( int64_t at = 0; at < pbStringLength( host ) && at < INET_ADDRSTRLEN - 1; ++at )
        text[ at ] = (char)pbStringCharAt( host, at );
    if( port > 65535 || inet_pton( AF_INET, text, &to.sin_addr ) != 1 ) return;
    PbBuffer *wire = sipsnMessageEncode( msg );
    sendto( udp, pbBufferBacking( wire ), (size_t)pbBufferLength( wire ), 0, (struct sockaddr *)&to, sizeof to );
    pbBufferRelease( wire );
}

/* Sends a response where its top Via says. */
static void udpReply( int udp, SipsnMessage *response )
{
    int64_t   port;
    PbString *host = sipsnMessageReplyDestination( response, &port );
    if( host ) {
        udpSend( udp, response, host, port );
        pbStringRelease( host );
    }
}

/* A token that is the same for the same text (FNV-1a): a branch or a tag of an element without memory. */
static PbString *hashOf( PbString *text )
{
    uint64_t hash = 14695981039346656037u;
    for( int64_t at = 0; at < pbStringLength( text ); ++at )
        hash = ( hash ^ (uint64_t)pbStringCharAt( text, at ) ) * 1099511628211u;
    char token[ 17 ];
    snprintf( token, sizeof token, "%016llx", (unsigned long long)hash );
    return pbStringCreateFromCstr( token, -1 );
}

/* Null passes. */
static void drop( PbObj *obj )
{
    if( obj ) pbObjRelease( obj );
}

#endif
