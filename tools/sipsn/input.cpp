// Files and the messages in them.
#include "input.h"

#include "fault.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tool {

namespace {

// Whether all could be read; else errno says why not.
bool ReadAll( std::FILE *file, std::string &bytes )
{
    char block[ 1 << 16 ];
    while( const size_t count = std::fread( block, 1, sizeof( block ), file ) ) bytes.append( block, count );
    return !std::ferror( file );
}

bool ReadPath( const std::string &path, std::string &bytes )
{
    if( path == "-" ) return ReadAll( stdin, bytes );
    const std::unique_ptr< std::FILE, int ( * )( std::FILE * ) > file{ std::fopen( path.c_str(), "rb" ), std::fclose };
    return file && ReadAll( file.get(), bytes );
}

// The message that the bytes begin with and how many of them it takes; 0 when there is none.
size_t TakeMessage( std::string_view bytes, Owned< SipsnMessage > &message )
{
    const size_t            headerEnd = bytes.find( "\r\n\r\n" );
    const size_t            bodyBegin = headerEnd == bytes.npos ? bytes.size() : headerEnd + 4;
    const Owned< PbBuffer > head = MakeBuffer( headerEnd == bytes.npos ? bytes : bytes.substr( 0, headerEnd + 2 ) );

    int64_t                             contentLength;
    const Owned< SipsnMessageFragment > fragment{ sipsnMessageFragmentTryDecodeHeaders( head.Get(), &contentLength ) };
    if( !fragment ) return 0;
    const size_t available  = bytes.size() - bodyBegin;
    const size_t bodyLength = contentLength < 0 ? available : size_t( contentLength );
    if( bodyLength > available ) return 0;

    const Owned< PbBuffer > whole = MakeBuffer( bytes.substr( 0, bodyBegin + bodyLength ) );
    message                       = Owned{ sipsnMessageTryDecode( whole.Get() ) };
    return message ? bodyBegin + bodyLength : 0;
}

} // namespace

std::optional< Input > TryReadInput( const std::string &path )
{
    Input input{ path == "-" ? "standard input" : Escape( path ), {} };
    if( !ReadPath( path, input.bytes ) ) {
        Complain( input.name, std::strerror( errno ) );
        return std::nullopt;
    }
    if( input.bytes.empty() ) {
        Complain( input.name, "empty" );
        return std::nullopt;
    }
    return input;
}

int64_t LineAt( std::string_view bytes, size_t offset )
{
    int64_t line = 1;
    for( size_t at = 0; at < std::min( offset, bytes.size() ); ++at )
        line += bytes[ at ] == '\n' || ( bytes[ at ] == '\r' && ( at + 1 == bytes.size() || bytes[ at + 1 ] != '\n' ) );
    return line;
}

std::vector< FoundMessage > FindMessages( std::string_view bytes )
{
    std::vector< FoundMessage > messages;
    size_t                      counted = 0;
    int64_t                     line    = 1;
    for( size_t at = bytes.find_first_not_of( "\r\n" ); at != bytes.npos; at = bytes.find_first_not_of( "\r\n", at ) ) {
        line += LineAt( bytes.substr( counted ), at - counted ) - 1;
        counted = at;

        Owned< SipsnMessage > message;
        const size_t          length = TakeMessage( bytes.substr( at ), message );
        messages.push_back( { line, length ? bytes.substr( at, length ) : bytes.substr( at ), std::move( message ) } );
        if( length == 0 ) {
            const Fault fault         = FindFault( bytes.substr( at ), Transport::datagram );
            messages.back().faultLine = line + LineAt( bytes.substr( at ), fault.offset ) - 1;
            messages.back().reason =
                ( messages.size() > 1 && fault.offset == 0 ? "after the message before it: " : "" ) + fault.reason;
            break;
        }
        at += length;
    }
    if( messages.empty() ) messages.push_back( { 1, bytes, {}, 1, "no message, only line ends" } );
    return messages;
}

std::string Place( const Input &input, int64_t line ) { return input.name + ':' + std::to_string( line ); }

Status ComplainOfFaults( const Input &input, const std::vector< FoundMessage > &messages )
{
    Status status = allWell;
    for( const FoundMessage &found : messages ) {
        if( found.message ) continue;
        Complain( Place( input, found.faultLine ), found.reason );
        status = someFailed;
    }
    return status;
}

void PrintWire( SipsnMessage *message )
{
    const Owned< PbBuffer > wire{ sipsnMessageEncode( message ) };
    Print( OutputIsTerminal() ? EscapeLines( Bytes( wire.Get() ) ) : Bytes( wire.Get() ) );
}

std::string StartLine( SipsnMessage *message )
{
    const Owned< SipsnVersion > version{ sipsnMessageVersion( message ) };
    const std::string           versionText = Utf8( Owned{ sipsnVersionToString( version.Get() ) } );
    if( sipsnMessageIsRequest( message ) )
        return Escape( Utf8( Owned{ sipsnMessageRequestMethod( message ) } ) + ' ' +
                       Utf8( Owned{ sipsnMessageRequestIri( message ) } ) + ' ' + versionText );
    return Escape( versionText + ' ' + std::to_string( sipsnMessageResponseStatusCode( message ) ) + ' ' +
                   Utf8( Owned{ sipsnMessageResponseReasonPhrase( message ) } ) );
}

} // namespace tool
