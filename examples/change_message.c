/* Decodes a request, changes it and writes it back: the smallest use of the library. Reads standard input. */
#include <sipsn/sipsn.h>

#include <stdio.h>

int main( void )
{
    static char bytes[ 65536 ];
    size_t      length = fread( bytes, 1, sizeof bytes, stdin );
    pbModuleStart( sipsnModule() );

    PbBuffer     *received = pbBufferCreateFromBytesCopy( bytes, (int64_t)length );
    SipsnMessage *message  = sipsnMessageTryDecode( received );
    if( !message || !sipsnMessageIsRequest( message ) ) return 1;

    sipsnMessageSetRequestIriCstr( &message, "sip:bob@backup.example.com", -1 );
    SipsnMessageHeader *subject = sipsnMessageHeaderCreateCstr( "Subject", -1 );
    sipsnMessageHeaderAppendLineCstr( &subject, "Redirected", -1 );
    sipsnMessageSetHeader( &message, subject );

    PbBuffer *changed = sipsnMessageEncode( message );
    fwrite( pbBufferBacking( changed ), 1, (size_t)pbBufferLength( changed ), stdout );

    pbBufferRelease( changed );
    sipsnMessageHeaderRelease( subject );
    sipsnMessageRelease( message );
    pbBufferRelease( received );
    pbModuleStop( sipsnModule() );
    return 0;
}
