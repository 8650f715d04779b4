// Where things stand in the bytes of a message: its header fields, and what makes it no message. The library answers
// only that it is none.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace tool {

struct Fault
{
    size_t      offset; // in the bytes, where the line at fault begins
    std::string reason; // fit to be printed
};

// On a stream a message must have a Content-Length; in a datagram it ends with it at the latest.
enum class Transport
{
    datagram,
    stream
};

// For bytes that begin with a message that does not decode.
Fault FindFault( std::string_view bytes, Transport transport );

// Calls `visit( name, offset )` for each header field of a message that decodes, with its canonical name and where its
// line begins.
void ForEachHeaderField( std::string_view                                                       bytes,
                         const std::function< void( const std::string &name, size_t offset ) > &visit );

} // namespace tool
