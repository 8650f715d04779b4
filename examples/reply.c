/* Answers a request with 200 (OK), as RFC 3261 section 8.2.6 says. Reads standard input. */
#define _DEFAULT_SOURCE /* for getentropy */
#include <sipsn/sipsn.h>

#include <stdio.h>
#include <sys/random.h>

/* A tag that nobody can guess, RFC 3261 section 19.3. */
static PbString *createTag( void )
{
    unsigned random[ 2 ];
    char     tag[ 17 ];
    if( getentropy( random, sizeof random ) != 0 ) return NULL;
    snprintf( tag, sizeof tag, "%08x%08x", random[ 0 ], random[ 1 ] );
    return pbStringCreateFromCstr( tag, -1 );
}

static SipsnMessage *tryAnswer( SipsnMessage *request, PbString *tag )
{
    static const char *const copied[] = { "Via", "From", "Call-Id", "Cseq", "Record-Route" };

    SipsnHeaderTo *to = sipsnHeaderToTryDecodeFromMessage( request );
    if( !to ) return NULL;
    if( !sipsnHeaderToHasTag( to ) ) sipsnHeaderToSetTag( &to, tag );

    SipsnVersion *version  = sipsnMessageVersion( request );
    SipsnMessage *response = sipsnMessageCreateResponse( version, 200 );
    sipsnHeaderToEncodeToMessage( to, &response );
    for( size_t at = 0; at < sizeof copied / sizeof *copied; ++at ) {
        SipsnMessageHeader *header = sipsnMessageHeaderCstr( request, copied[ at ], -1 );
        if( !header ) continue;
        sipsnMessageSetHeader( &response, header );
        sipsnMessageHeaderRelease( header );
    }

    sipsnVersionRelease( version );
    sipsnHeaderToRelease( to );
    return response;
}

int main( void )
{
    static char bytes[ 65536 ];
    size_t      length = fread( bytes, 1, sizeof bytes, stdin );
    pbModuleStart( sipsnModule() );

    PbBuffer     *received = pbBufferCreateFromBytesCopy( bytes, (int64_t)length );
    SipsnMessage *request  = sipsnMessageTryDecode( received );
    if( !request || !sipsnMessageIsRequest( request ) ) return 1;
    PbString     *tag      = createTag();
    SipsnMessage *response = tag ? tryAnswer( request, tag ) : NULL;
    if( !response ) return 1;

    PbBuffer *answer = sipsnMessageEncode( response );
    fwrite( pbBufferBacking( answer ), 1, (size_t)pbBufferLength( answer ), stdout );

    pbBufferRelease( answer );
    sipsnMessageRelease( response );
    pbStringRelease( tag );
    sipsnMessageRelease( request );
    pbBufferRelease( received );
    pbModuleStop( sipsnModule() );
    return 0;
}
