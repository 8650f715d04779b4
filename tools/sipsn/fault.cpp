// Where things stand in the bytes of a message: its header fields, and what makes it no message.
//
// The grammar stays with the library: a part is at fault when a message that is good in everything else does not decode
// with it.
#include "fault.h"

#include "text.h"

#include <algorithm>
#include <optional>

namespace tool {

namespace {

using Text = std::string_view;

constexpr Text goodStartLine = "SIP/2.0 200 OK";

enum class Decoded
{
    not_,
    header,
    request,
    response
};

Decoded TryHead( Text head, int64_t *contentLength = nullptr )
{
    const Owned< PbBuffer >             bytes = MakeBuffer( head );
    const Owned< SipsnMessageFragment > fragment{ sipsnMessageFragmentTryDecodeHeaders( bytes.Get(), contentLength ) };
    if( !fragment ) return Decoded::not_;
    if( sipsnMessageFragmentIsRequest( fragment.Get() ) ) return Decoded::request;
    return sipsnMessageFragmentIsResponse( fragment.Get() ) ? Decoded::response : Decoded::header;
}

Decoded TryLine( const std::string &line ) { return TryHead( line + "\r\n" ); }

bool FieldDecodes( Text field )
{
    return TryHead( std::string( goodStartLine ) + "\r\n" + std::string( field ) ) != Decoded::not_;
}

// The length of the line at the start, and of its end: CR LF, a lone CR or a lone LF.
struct Line
{
    size_t length, withEnd;
};

Line FirstLine( Text text )
{
    const size_t length = std::min( text.find_first_of( "\r\n" ), text.size() );
    const size_t end    = text.substr( length, 2 ) == "\r\n" ? 2 : length < text.size() ? 1 : 0;
    return { length, length + end };
}

std::string FaultOfRequestLine( Text line )
{
    const size_t first  = line.find( ' ' );
    const size_t second = first == line.npos ? line.npos : line.find( ' ', first + 1 );
    if( second == line.npos ) return "no start line: " + Quote( line );

    const std::string method{ line.substr( 0, first ) };
    const std::string uri{ line.substr( first + 1, second - first - 1 ) };
    const std::string version{ line.substr( second + 1 ) };
    if( TryLine( method + " sip:a@example.com SIP/2.0" ) != Decoded::request ) return "no start line: " + Quote( line );
    if( TryLine( "OPTIONS " + uri + " SIP/2.0" ) != Decoded::request ) return "request line: no URI: " + Quote( uri );
    return "request line: no protocol version: " + Quote( version );
}

std::string FaultOfStartLine( Text line )
{
    const size_t      space = std::min( line.find( ' ' ), line.size() );
    const std::string version{ line.substr( 0, space ) };
    if( TryLine( version + " 200 OK" ) != Decoded::response ) return FaultOfRequestLine( line );

    const Text        rest = line.substr( std::min( space + 1, line.size() ) );
    const std::string code{ rest.substr( 0, rest.find( ' ' ) ) };
    if( TryLine( version + ' ' + code + " OK" ) != Decoded::response )
        return "status line: no number from 100 to 999: " + Quote( code );
    return "status line: reason phrase is not UTF-8: " + Quote( rest );
}

std::string FaultOfField( Text field )
{
    const Text line = field.substr( 0, FirstLine( field ).length );
    const Text name = field.substr( 0, field.find_first_of( ": \t\r\n" ) );
    const Text rest = field.substr( std::min( field.find_first_not_of( " \t\r\n", name.size() ), field.size() ) );
    if( !FieldDecodes( std::string( name ) + ':' ) ) return "no header field name: " + Quote( line );
    if( !rest.starts_with( ':' ) ) return "no colon after the header field name: " + Quote( line );
    return "header field is not UTF-8: " + Quote( line );
}

// A field at the start of the text, with the lines that continue it.
Text TakeField( Text text )
{
    size_t end = FirstLine( text ).withEnd;
    while( end < text.size() && ( text[ end ] == ' ' || text[ end ] == '\t' ) )
        end += FirstLine( text.substr( end ) ).withEnd;
    return text.substr( 0, end );
}

// Calls `visit( offset, field )` with each field from `begin` on, until it returns true.
template< class Visit > void ForEachField( Text head, size_t begin, Visit visit )
{
    for( size_t at = begin; at < head.size(); ) {
        const Text field = TakeField( head.substr( at ) );
        if( visit( at, field ) ) return;
        at += field.size();
    }
}

// The canonical name; none where the field has none that is valid.
std::string NameOf( Text field )
{
    const Owned< PbString > name = TryString( field.substr( 0, field.find_first_of( ": \t\r\n" ) ) );
    if( !name || !sipsnMessageHeaderNameOk( name.Get() ) ) return {};
    return Utf8( Owned{ sipsnMessageHeaderNameNormalize( name.Get() ) } );
}

// The last one, which is the one that counts.
Fault FaultOfContentLength( Text head, size_t begin, Text reason )
{
    Fault fault{ 0, {} };
    ForEachField( head, begin, [ & ]( size_t at, Text field ) {
        if( NameOf( field ) == "Content-Length" )
            fault = { at, Quote( field.substr( 0, FirstLine( field ).length ) ) + std::string( reason ) };
        return false;
    } );
    return fault;
}

// An empty line within the header fields comes of line ends that are not CR LF: what follows it was meant as the body.
std::optional< Fault > FindBareEmptyLine( Text head, size_t faultAt )
{
    for( size_t at = 0; at < faultAt; ) {
        const Line line = FirstLine( head.substr( at ) );
        if( line.length == 0 )
            return Fault{ at, "line ends are not CR LF, so this empty line does not end the header fields" };
        at += line.withEnd;
    }
    return std::nullopt;
}

std::optional< Fault > FindFieldFault( Text head, size_t begin )
{
    std::optional< Fault > fault;
    ForEachField( head, begin, [ & ]( size_t at, Text field ) {
        if( FieldDecodes( field ) ) return false;
        fault = FindBareEmptyLine( head, at );
        if( !fault ) fault = Fault{ at, FaultOfField( field ) };
        return true;
    } );
    return fault;
}

// What stands before the empty line, or everything.
Text HeadOf( Text bytes, size_t headerEnd )
{
    return headerEnd == bytes.npos ? bytes : bytes.substr( 0, headerEnd + 2 );
}

} // namespace

Fault FindFault( std::string_view bytes, Transport transport )
{
    const size_t headerEnd = bytes.find( "\r\n\r\n" );
    const Text   head      = HeadOf( bytes, headerEnd );
    const Line   first     = FirstLine( head );
    const auto   startLine = TryLine( std::string( head.substr( 0, first.length ) ) );
    if( startLine == Decoded::not_ || startLine == Decoded::header )
        return { 0, FaultOfStartLine( head.substr( 0, first.length ) ) };
    if( const auto fault = FindFieldFault( head, first.withEnd ) ) return *fault;

    int64_t contentLength;
    if( TryHead( head, &contentLength ) == Decoded::not_ )
        return FaultOfContentLength( head, first.withEnd, " is no length" );
    if( headerEnd == bytes.npos ) return { 0, "no empty line ends the header fields" };
    if( contentLength < 0 && transport == Transport::stream ) return { 0, "no Content-Length, which a stream needs" };
    return FaultOfContentLength(
        head, first.withEnd, ", but the body has only " + Count( int64_t( bytes.size() - headerEnd - 4 ), "byte" ) );
}

void ForEachHeaderField( std::string_view                                                       bytes,
                         const std::function< void( const std::string &name, size_t offset ) > &visit )
{
    const Text head = HeadOf( bytes, bytes.find( "\r\n\r\n" ) );
    ForEachField( head, FirstLine( head ).withEnd, [ & ]( size_t at, Text field ) {
        visit( NameOf( field ), at );
        return false;
    } );
}

} // namespace tool
