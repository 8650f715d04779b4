// What is wrong in a file, where, and how that is printed.
#pragma once

#include "input.h"

#include <string>
#include <string_view>
#include <vector>

namespace tool {

// One thing that is wrong.
struct Finding
{
    SipsnPlace  place;
    int64_t     length; // in bytes; 0 where something is missing
    std::string header; // the canonical name; empty for what is not about the value of a header field
    std::string reason;
    std::string text; // as it was received: the line, or what is malformed in the header field
};

// Of a message that has a fault.
Finding FindingOf( const Input &input, const SipsnFault &fault );

// The header fields of a message that decodes which have a type and do not decode, in the order of the file.
std::vector< Finding > FindBadFields( const Input &input, const FoundMessage &found );

// Addresses that decode, but that a neighbour may take for two: a comma in a URI without angle brackets (RFC 3261
// section 20.10).
std::vector< Finding > FindBareCommas( const Input &input, const FoundMessage &found );

// "FILE:LINE:COLUMN: Via: reason" with the text in quotes, fit to be printed; for a terminal the line of the file is
// shown below instead, with a mark under the place.
std::string DescribeFinding( const Input &input, const Finding &finding, bool onTerminal );

// Tells of the messages that have a fault, on standard error, and what that means for the status.
Status ComplainOfFaults( const Input &input, const std::vector< FoundMessage > &messages );

} // namespace tool
