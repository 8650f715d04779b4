// Objects of the library by their members, as JSON: text as text, numbers as numbers, and no member that is absent.
#pragma once

#include "output.h"
#include "owned.h"

namespace tool {

// An object of any type whose members are described, and a parameter or a set of them.
Json Describe( PbObj *obj );

// Whether members of the kind are read and set as numbers.
bool IsNumber( int64_t kind );

// A member; null when it is absent, and for what goes without saying: a flag that is not set, parameters that are none.
Json DescribeMember( PbObj *obj, int64_t member );

} // namespace tool
