// Results on standard output, messages on standard error, trees and JSON.
#include "output.h"

#include "text.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace tool {

namespace {

int outputError = 0; // why something that was printed could not be written

bool TerminalWantsColours( int file )
{
    const char *noColour = std::getenv( "NO_COLOR" );
    const char *kind     = std::getenv( "TERM" );
    return isatty( file ) && !( noColour && *noColour ) && !( kind && std::strcmp( kind, "dumb" ) == 0 );
}

const char *CodeOf( Ink ink )
{
    switch( ink ) {
    case Ink::strong: return "\x1B[1m";
    case Ink::name: return "\x1B[36m";
    case Ink::note: return "\x1B[2m";
    case Ink::good: return "\x1B[32m";
    case Ink::bad: return "\x1B[31m";
    }
    return "";
}

void PrintNode( const Node &node, const std::string &before )
{
    for( const std::string &line : node.block ) {
        if( !line.empty() ) Print( before + "   " );
        PrintLine( line );
    }
    for( const Node &child : node.children ) {
        const bool last = &child == &node.children.back();
        Print( before );
        Print( Paint( Ink::note, last ? "└─ " : "├─ " ) );
        PrintLine( child.text );
        PrintNode( child, before + ( last ? "   " : Paint( Ink::note, "│  " ) ) );
    }
}

} // namespace

void Print( std::string_view text ) { std::fwrite( text.data(), 1, text.size(), stdout ); }

void PrintLine( std::string_view text )
{
    Print( text );
    Print( "\n" );
}

void PrintJson( const Json &json )
{
    PrintLine( EscapeJson( json.dump( 2, ' ', false, Json::error_handler_t::replace ) ) );
}

void PrintJsonLine( const Json &json )
{
    PrintLine( EscapeJson( json.dump( -1, ' ', false, Json::error_handler_t::replace ) ) );
}

void Complain( std::string_view place, std::string_view reason )
{
    ComplainInLines( std::string( place ) + ": " + std::string( reason ) + '\n' );
}

void ComplainInLines( std::string_view lines )
{
    FlushOutput();
    std::fwrite( lines.data(), 1, lines.size(), stderr );
}

void FlushOutput()
{
    if( std::fflush( stdout ) != 0 && outputError == 0 ) outputError = errno;
}

bool FinishOutput()
{
    FlushOutput();
    if( outputError == 0 && !std::ferror( stdout ) ) return true;
    Complain( "standard output", std::strerror( outputError ) );
    return false;
}

bool OutputIsTerminal() { return isatty( STDOUT_FILENO ); }
bool ErrorsAreOnTerminal() { return isatty( STDERR_FILENO ); }

std::string Paint( Ink ink, std::string_view text )
{
    static const bool colours = TerminalWantsColours( STDOUT_FILENO );
    if( !colours ) return std::string( text );
    return CodeOf( ink ) + std::string( text ) + "\x1B[0m";
}

void PrintTree( const Node &root )
{
    PrintLine( root.text );
    PrintNode( root, "" );
}

} // namespace tool
