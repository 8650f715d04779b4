// Messages made of the JSON that decode --json prints.
#pragma once

#include "output.h"
#include "owned.h"

#include <stdexcept>
#include <string>

namespace tool {

// What is refused, with its path: "headers.Via.items[0].ttl: 300 is not a ttl". Fit to be printed.
struct Refusal : std::runtime_error
{
    using runtime_error::runtime_error;
};

// The message of one object; paths begin with `path`. Throws a Refusal.
Owned< SipsnMessage > BuildMessage( const std::string &path, const Json &json );

} // namespace tool
