// Objects of the library by their members, as JSON: text as text, numbers as numbers, and no member that is absent; and
// JSON as trees.
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

// "label: value", the label alone for null; with the members of an object and the items of an array as children. A
// member that is called "iri" has the parts of its URI below it.
Node MakeNode( std::string_view label, const Json &value );

// A text, fit to be printed, with the members that it was found to have below it.
Node MakeValueNode( std::string text, const Json &members );

} // namespace tool
