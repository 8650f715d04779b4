// The form of the JSON that decode --json prints and encode --json reads, as a JSON Schema.
#pragma once

#include "output.h"

namespace tool {

Json MakeJsonSchema();

} // namespace tool
