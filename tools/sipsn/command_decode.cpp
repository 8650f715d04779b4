// sipsn decode: messages as trees or as JSON.
#include "commands.h"
#include "describe.h"
#include "family.h"
#include "fault.h"
#include "input.h"

#include <algorithm>
#include <cctype>
#include <memory>

namespace tool {

namespace {

constexpr const char *footer =
    R"(The tree has the start line, the URI of a request, the header fields in order of their canonical names, and the size and
beginning of the body. A header field that has a type (sipsn headers) is shown with its members, or with its items and theirs,
and marked as malformed when it does not decode. Of a header field with one value the last line counts. SIP, SIPS and tel URIs
are shown in their parts.

JSON is one array with an object for each message. A header field has its "lines"; by its type it has "members", or "items",
or "error" when it does not decode. All of the body is there as "text" (UTF-8) or "hex". What is wrong with a file has an
object of its own, with "error", its line and column, and the text of the line. "sipsn encode --json" makes messages of it again;
"sipsn headers --json-schema" prints its JSON Schema.

Examples:
  sipsn decode invite.sip
  sipsn decode < invite.sip
  sipsn decode --body 3 *.sip
  sipsn decode --raw invite.sip
  sipsn decode --json invite.sip | jq -r '.[0].headers.Via.items[].branch')";

struct Options
{
    std::vector< std::string > files;
    bool                       json      = false;
    bool                       raw       = false; // no types
    size_t                     bodyLines = 12;
};

// ---- JSON ------------------------------------------------------------------------------------------

std::string Hex( std::string_view bytes )
{
    const Owned< PbBuffer > buffer = MakeBuffer( bytes );
    return Utf8( Owned{ pbBufferToString( buffer.Get() ) } );
}

Json DescribeStartLine( SipsnMessage *message )
{
    const Owned< SipsnVersion > version{ sipsnMessageVersion( message ) };
    const std::string           versionText = Utf8( Owned{ sipsnVersionToString( version.Get() ) } );
    if( sipsnMessageIsRequest( message ) )
        return { { "method", Utf8( Owned{ sipsnMessageRequestMethod( message ) } ) },
                 { "iri", Utf8( Owned{ sipsnMessageRequestIri( message ) } ) },
                 { "version", versionText } };
    return { { "version", versionText },
             { "statusCode", sipsnMessageResponseStatusCode( message ) },
             { "reasonPhrase", Utf8( Owned{ sipsnMessageResponseReasonPhrase( message ) } ) } };
}

Json LinesOf( SipsnMessageHeader *header )
{
    Json lines = Json::array();
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( header ); ++at )
        lines.push_back( Utf8( Owned{ sipsnMessageHeaderLineAt( header, at ) } ) );
    return lines;
}

Json DescribeHeader( SipsnMessageHeader *header, const Family *family )
{
    Json described{ { "lines", LinesOf( header ) } };
    if( !family ) return described;
    if( const auto typed = TryDecode( *family, header ) )
        described[ KeyOf( *family ) ] = Describe( *family, *typed );
    else
        described[ "error" ] = malformed;
    return described;
}

// Calls `visit( name, header, family )` with each; the family is null for a header field that has no type.
template< class Visit > void ForEachHeader( SipsnMessage *message, bool raw, Visit visit )
{
    const Owned< PbVector > vector{ sipsnMessageHeadersVector( message ) };
    for( int64_t at = 0; at < pbVectorLength( vector.Get() ); ++at ) {
        const Owned< SipsnMessageHeader > header{ sipsnMessageHeaderFrom( pbVectorAt( vector.Get(), at ) ) };
        const std::string                 name = Utf8( Owned{ sipsnMessageHeaderName( header.Get() ) } );
        visit( name, header.Get(), raw ? nullptr : FindFamily( name ) );
    }
}

Json DescribeHeaders( SipsnMessage *message, bool raw )
{
    Json headers = Json::object();
    ForEachHeader( message, raw, [ & ]( const std::string &name, SipsnMessageHeader *header, const Family *family ) {
        headers[ name ] = DescribeHeader( header, family );
    } );
    return headers;
}

Json DescribeBody( std::string_view body )
{
    Json described{ { "length", body.size() } };
    if( const auto text = TryUtf8( body ) )
        described[ "text" ] = *text;
    else
        described[ "hex" ] = Hex( body );
    return described;
}

Json Describe( SipsnMessage *message, bool raw )
{
    Json described{ { sipsnMessageIsRequest( message ) ? "request" : "response", DescribeStartLine( message ) },
                    { "headers", DescribeHeaders( message, raw ) } };
    if( const Owned< PbBuffer > body{ sipsnMessageBody( message ) } )
        described[ "body" ] = DescribeBody( Bytes( body.Get() ) );
    return described;
}

void AddJson( Json &array, const Input &input, const FoundMessage &found, bool raw )
{
    if( found.message ) {
        array.push_back( { { "file", input.name }, { "line", found.place.begin.line } } );
        array.back().update( Describe( found.message.Get(), raw ) );
    }
    if( found.fault.kind == SIPSN_FAULT_NONE ) return;
    const Finding finding = FindingOf( input, found.fault );
    array.push_back( { { "file", input.name },
                       { "line", finding.place.line },
                       { "column", finding.place.column },
                       { "error", finding.reason },
                       { "text", finding.text } } );
}

// ---- Trees -----------------------------------------------------------------------------------------

std::string Named( const std::string &name, const std::string &text )
{
    return Paint( Ink::name, Escape( name ) ) + ( text.empty() ? ":" : ": " + Escape( text ) );
}

Node MakeLineNode( const std::string &line )
{
    return { line.empty() ? Paint( Ink::note, "(empty)" ) : Escape( line ) };
}

// The lines as they are.
Node MakeLinesNode( const std::string &name, const Json &lines )
{
    if( lines.size() == 1 ) return { Named( name, lines[ 0 ] ) };
    Node node{ Paint( Ink::name, Escape( name ) ) };
    for( const Json &line : lines ) node.children.push_back( MakeLineNode( line ) );
    return node;
}

Node Marked( Node node )
{
    node.text += Paint( Ink::bad, std::string( "  (" ) + malformed + ')' );
    return node;
}

// Adds the members below what they were found in, unless they say only the same once more.
Node WithMembers( Node node, const std::string &text, const Json &members )
{
    const Json *only = members.size() == 1 ? &members.front() : nullptr;
    if( only && ( only->is_string() ? *only == text : only->dump() == text ) ) return node;
    return MakeValueNode( std::move( node.text ), members );
}

// Of several lines only the last one counts.
Node MakeSingleNode( const std::string &name, const Json &lines, const Json &members )
{
    const std::string last = lines.back();
    if( lines.size() == 1 ) return WithMembers( { Named( name, last ) }, last, members );
    Node node   = MakeLinesNode( name, lines );
    Node counts = WithMembers( std::move( node.children.back() ), last, members );
    for( Node &child : node.children ) child.text += Paint( Ink::note, "  (not used)" );
    node.children.back() = std::move( counts );
    return node;
}

Node AddItem( Node node, const Item &item )
{
    return item.value.is_null() ? Marked( std::move( node ) ) : WithMembers( std::move( node ), item.text, item.value );
}

Node MakeValuesNode( const std::string &name, const std::vector< Item > &items )
{
    if( items.empty() ) return { Named( name, "" ) };
    if( items.size() == 1 ) return AddItem( { Named( name, items[ 0 ].text ) }, items[ 0 ] );
    Node node{ Paint( Ink::name, Escape( name ) ) };
    for( const Item &item : items ) node.children.push_back( AddItem( MakeLineNode( item.text ), item ) );
    return node;
}

Node MakeTokensNode( const std::string &name, const std::vector< Item > &items )
{
    std::string text;
    for( const Item &item : items ) text += ( text.empty() ? "" : ", " ) + item.text;
    return { Named( name, text ) };
}

Node MakeHeaderNode( const std::string &name, SipsnMessageHeader *header, const Family *family )
{
    const Json lines = LinesOf( header );
    if( !family ) return MakeLinesNode( name, lines );
    const auto typed = TryDecode( *family, header );
    if( !typed ) return Marked( MakeLinesNode( name, lines ) );
    switch( family->shape ) {
    case SIPSN_SCHEMA_SHAPE_SINGLE: return MakeSingleNode( name, lines, typed->members );
    case SIPSN_SCHEMA_SHAPE_LIST: return MakeValuesNode( name, typed->items );
    default: return MakeTokensNode( name, typed->items );
    }
}

// "    0  76 3d 30 0d 0a  |v=0..|"
std::string DumpRow( size_t offset, std::string_view row )
{
    std::string hex, text;
    for( const char byte : row ) {
        hex += Hex( { &byte, 1 } ) + ' ';
        text += byte >= ' ' && byte <= '~' ? byte : '.';
    }
    hex.resize( 3 * 16, ' ' );
    std::string dump = std::to_string( offset );
    dump.insert( 0, 5 - std::min< size_t >( dump.size(), 5 ), ' ' );
    return Paint( Ink::note, dump ).append( "  " ).append( hex ).append( " |" ).append( text ).append( "|" );
}

std::vector< std::string > DumpBytes( std::string_view bytes, size_t most )
{
    std::vector< std::string > lines;
    for( size_t at = 0; at < bytes.size() && lines.size() < most; at += 16 )
        lines.push_back( DumpRow( at, bytes.substr( at, 16 ) ) );
    return lines;
}

std::vector< std::string > TextLines( std::string_view text, size_t most )
{
    std::vector< std::string > lines;
    while( !text.empty() && lines.size() < most ) {
        const size_t     end  = std::min( text.find( '\n' ), text.size() );
        std::string_view line = text.substr( 0, end );
        if( line.ends_with( '\r' ) ) line.remove_suffix( 1 );
        lines.push_back( Escape( line ) );
        text.remove_prefix( std::min( end + 1, text.size() ) );
    }
    if( !text.empty() ) lines.push_back( Paint( Ink::note, "... " + Count( int64_t( text.size() ), "more byte" ) ) );
    return lines;
}

Node MakeBodyNode( std::string_view body, size_t mostLines )
{
    Node node{ Paint( Ink::name, "body" ) + ": " + Count( int64_t( body.size() ), "byte" ) };
    if( mostLines > 0 ) node.block = TryUtf8( body ) ? TextLines( body, mostLines ) : DumpBytes( body, mostLines );
    return node;
}

Node MakeMessageNode( SipsnMessage *message, const Options &options )
{
    Node node{ Paint( Ink::strong, StartLine( message ) ) };
    if( sipsnMessageIsRequest( message ) && !options.raw )
        node.children.push_back( MakeNode( "iri", Utf8( Owned{ sipsnMessageRequestIri( message ) } ) ) );
    ForEachHeader( message, options.raw, [ & ]( const auto &name, SipsnMessageHeader *header, const Family *family ) {
        node.children.push_back( MakeHeaderNode( name, header, family ) );
    } );
    if( const Owned< PbBuffer > body{ sipsnMessageBody( message ) } )
        node.children.push_back( MakeBodyNode( Bytes( body.Get() ), options.bodyLines ) );
    return node;
}

void PrintMessage( const Input &input, const FoundMessage &found, const Options &options, bool oneOfMany )
{
    static bool first = true;
    if( oneOfMany )
        PrintLine( ( first ? "" : "\n" ) + Paint( Ink::note, "== " + Place( input, found.place.begin.line ) ) );
    first = false;
    PrintTree( MakeMessageNode( found.message.Get(), options ) );
}

Status RunDecode( const Options &options )
{
    Json       array  = Json::array();
    const auto status = ForEachInput( options.files, [ & ]( const Input &input ) {
        const std::vector< FoundMessage > messages  = FindMessages( input, Framing::datagram );
        const bool                        oneOfMany = options.files.size() > 1 || messages.size() > 1;
        for( const FoundMessage &found : messages ) {
            if( options.json )
                AddJson( array, input, found, options.raw );
            else if( found.message )
                PrintMessage( input, found, options, oneOfMany );
        }
        return ComplainOfFaults( input, messages );
    } );
    if( options.json ) PrintJson( array );
    return status;
}

} // namespace

void AddDecode( CLI::App &app, Task &task )
{
    CLI::App *command = app.add_subcommand( "decode", "Print messages as trees, or as JSON" );
    auto      options = std::make_shared< Options >();
    command->footer( footer );
    command->add_option( "FILE", options->files, filesHelp )->type_name( "" );
    command->add_flag( "--json", options->json, "Print JSON" );
    command->add_flag( "--raw", options->raw, "Print the lines of header fields alone" );
    command->add_option( "--body", options->bodyLines, "How many lines of a body the tree has" )->capture_default_str();
    command->callback( [ &task, options ] { task = [ options ] { return RunDecode( *options ); }; } );
}

} // namespace tool
