// Files and the messages in them.
#pragma once

#include "output.h"
#include "text.h"

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

// What was read under a name. The name is fit to be printed.
struct Input
{
    std::string       name;
    Owned< PbBuffer > buffer;
};

// Reads a file, or standard input for "-"; when that fails or gives no bytes at all, says so and returns nothing.
std::optional< Input > TryReadInput( const std::string &path );

// Calls `visit` with each input, "-" standing for no path at all; the worst status of all. What goes wrong with one
// input does not keep the others from being looked at.
template< class Visit > Status ForEachInput( std::vector< std::string > paths, Visit visit )
{
    Status status = allWell;
    if( paths.empty() ) paths.emplace_back( "-" );
    for( const std::string &path : paths ) try {
            const std::optional< Input > input = TryReadInput( path );
            Worsen( status, input ? visit( *input ) : cannotRun );
            FlushOutput();
        } catch( const std::exception &error ) {
            Complain( Escape( path ), error.what() );
            status = cannotRun;
        }
    return status;
}

// A message in a file, or why there is none at its place. A message may have a fault as well: when what follows it
// shows that its Content-Length is wrong, or when a stream could not carry it.
struct FoundMessage
{
    SipsnMessagePlace     place;
    Owned< SipsnMessage > message;
    SipsnFault            fault; // SIPSN_FAULT_NONE when there is none
};

// How messages are told apart; see sipsn_message_reader.h.
enum class Framing
{
    datagram,
    stream,
    either // as on a stream where that is possible; else as in a datagram, and the fault says what a stream lacks
};

// The messages of a file one after another, CR LF pairs between them. What is malformed is the last.
std::vector< FoundMessage > FindMessages( const Input &input, Framing framing );

// "FILE:LINE".
std::string Place( const Input &input, int64_t line );

// Writes the message in its canonical wire form; for a terminal with its line ends, and control characters escaped.
void PrintWire( SipsnMessage *message );

// "INVITE sip:bob@example.com SIP/2.0", escaped.
std::string StartLine( SipsnMessage *message );

} // namespace tool
