// Files and the messages in them.
#include "input.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tool {

namespace {

// Whether all could be read; else errno says why not.
bool ReadAll( std::FILE *file, Owned< PbBuffer > &buffer )
{
    char block[ 1 << 16 ];
    while( const size_t count = std::fread( block, 1, sizeof( block ), file ) )
        pbBufferAppendBytes( buffer.Slot(), block, int64_t( count ) );
    return !std::ferror( file );
}

bool ReadPath( const std::string &path, Owned< PbBuffer > &buffer )
{
    if( path == "-" ) return ReadAll( stdin, buffer );
    const std::unique_ptr< std::FILE, int ( * )( std::FILE * ) > file{ std::fopen( path.c_str(), "rb" ), std::fclose };
    return file && ReadAll( file.get(), buffer );
}

// The message behind the one at `before`.
FoundMessage FindNext( const Input &input, int64_t framing, const SipsnMessagePlace &before )
{
    FoundMessage found{ before, {}, {} };
    found.message = Owned{ sipsnMessageTryDecodeNext( input.buffer.Get(), framing, &found.place, &found.fault ) };
    return found;
}

FoundMessage FindNext( const Input &input, Framing framing, const SipsnMessagePlace &before )
{
    if( framing == Framing::datagram ) return FindNext( input, SIPSN_FRAMING_DATAGRAM, before );
    FoundMessage found = FindNext( input, SIPSN_FRAMING_STREAM, before );
    if( found.message || framing == Framing::stream ) return found;
    FoundMessage datagram = FindNext( input, SIPSN_FRAMING_DATAGRAM, before );
    if( !datagram.message ) return found;
    datagram.fault = found.fault;
    return datagram;
}

} // namespace

std::optional< Input > TryReadInput( const std::string &path )
{
    Input input{ path == "-" ? "standard input" : Escape( path ), Owned{ pbBufferCreate() } };
    if( !ReadPath( path, input.buffer ) ) {
        Complain( input.name, std::strerror( errno ) );
        return std::nullopt;
    }
    if( pbBufferLength( input.buffer.Get() ) == 0 ) {
        Complain( input.name, "empty" );
        return std::nullopt;
    }
    return input;
}

std::vector< FoundMessage > FindMessages( const Input &input, Framing framing )
{
    std::vector< FoundMessage > messages;
    SipsnMessagePlace           place{};
    for( bool more = true; more; ) {
        FoundMessage  found = FindNext( input, framing, place );
        const int64_t kind  = found.fault.kind;
        if( kind == SIPSN_FAULT_NO_MESSAGE && !messages.empty() ) break;
        if( kind == SIPSN_FAULT_BODY_LONG || kind == SIPSN_FAULT_BODY_RUNS_OVER ) { // of the message before
            messages.back().fault = found.fault;
            break;
        }
        place = found.place;
        more  = bool( found.message );
        messages.push_back( std::move( found ) );
    }
    return messages;
}

std::string Place( const Input &input, int64_t line ) { return input.name + ':' + std::to_string( line ); }

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
