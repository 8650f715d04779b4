/* Prints method and IRI of a request, with what is installed and nothing else. */
#include "sipsn/sipsn.h"

#include <stdio.h>
#include <string.h>

static void print( PbString *text )
{
    PbBuffer *bytes = pbCharsetStringToBufferWithFlags( PB_CHARSET_UTF8, text, PB_CHARSET_FLAG_STRICT );
    fwrite( pbBufferBacking( bytes ), 1, (size_t)pbBufferLength( bytes ), stdout );
    pbBufferRelease( bytes );
    pbStringRelease( text );
}

int main( void )
{
    const char request[] = "INVITE sip:bob@example.com SIP/2.0\r\nContent-Length: 0\r\n\r\n";

    pbModuleStart( sipsnModule() );
    PbBuffer     *buffer  = pbBufferCreateFromBytesCopy( request, (int64_t)strlen( request ) );
    SipsnMessage *message = sipsnMessageTryDecode( buffer );
    if( message ) {
        print( sipsnMessageRequestMethod( message ) );
        putchar( ' ' );
        print( sipsnMessageRequestIri( message ) );
        sipsnMessageRelease( message );
    }
    pbBufferRelease( buffer );
    pbModuleStop( sipsnModule() );
    return message ? 0 : 1;
}
