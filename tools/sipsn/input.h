// Files and the messages in them.
#pragma once

#include "output.h"
#include "text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

// What was read under a name. The name is fit to be printed.
struct Input
{
    std::string name;
    std::string bytes;
};

// Reads a file, or standard input for "-"; when that fails or gives no bytes at all, says so and returns nothing.
std::optional< Input > TryReadInput( const std::string &path );

// Calls `visit` with each input, "-" standing for no path at all; the worst status of all.
template< class Visit > Status ForEachInput( std::vector< std::string > paths, Visit visit )
{
    Status status = allWell;
    if( paths.empty() ) paths.emplace_back( "-" );
    for( const std::string &path : paths ) {
        const std::optional< Input > input = TryReadInput( path );
        Worsen( status, input ? visit( *input ) : cannotRun );
    }
    return status;
}

// The number, from 1, of the line that the byte at `offset` stands in.
int64_t LineAt( std::string_view bytes, size_t offset );

// A message in a file, or why there is none at its place.
struct FoundMessage
{
    int64_t               line;    // where it begins
    std::string_view      bytes;   // its own; all the rest for one that is malformed
    Owned< SipsnMessage > message; // or null, and then:
    int64_t               faultLine = 0;
    std::string           reason    = {};
};

// The messages of a file: one, or several one after another with CR and LF between them at will. A message without
// Content-Length reaches to the end of the file, as one in a datagram does. What is malformed is the last.
std::vector< FoundMessage > FindMessages( std::string_view bytes );

// "FILE:LINE".
std::string Place( const Input &input, int64_t line );

// "FILE: reason" on standard error, once for each message that is malformed, and what that means for the status.
Status ComplainOfFaults( const Input &input, const std::vector< FoundMessage > &messages );

// Writes the message in its canonical wire form; for a terminal with its line ends, and control characters escaped.
void PrintWire( SipsnMessage *message );

// "INVITE sip:bob@example.com SIP/2.0", escaped.
std::string StartLine( SipsnMessage *message );

} // namespace tool
