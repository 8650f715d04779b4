// Results on standard output, messages on standard error, trees and JSON.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

using Json = nlohmann::ordered_json;

// What a command ends with; the worst of what happened.
enum Status
{
    allWell    = 0,
    someFailed = 1,
    cannotRun  = 2
};

inline void Worsen( Status &status, Status by ) { status = status < by ? by : status; }

// Text goes to standard output as it is: what comes from a message has been through Escape.
void Print( std::string_view text );
void PrintLine( std::string_view text );
void PrintJson( const Json &json );
void PrintJsonLine( const Json &json );

// "FILE:LINE: reason" on standard error; or the lines as they are.
void Complain( std::string_view place, std::string_view reason );
void ComplainInLines( std::string_view lines );

// Writes out what was printed so far.
void FlushOutput();

// Whether everything that was printed has been written; else says so.
bool FinishOutput();

bool OutputIsTerminal();
bool ErrorsAreOnTerminal();

// Colours for a terminal that wants them (NO_COLOR and TERM are heeded); anywhere else the text as it is.
enum class Ink
{
    strong,
    name,
    note,
    good,
    bad
};
std::string Paint( Ink ink, std::string_view text );

// A line of text, what hangs below it, and lines that are shown below it as they are.
struct Node
{
    std::string                text     = {};
    std::vector< Node >        children = {};
    std::vector< std::string > block    = {};
};
void PrintTree( const Node &root );

} // namespace tool
