// The header fields that have a type, and what the type makes of a header field.
#pragma once

#include "output.h"
#include "owned.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

using Family = SipsnSchemaFamily;

// Null when the header field has no type.
const Family *FindFamily( std::string_view name );

// An item of a list or a set: a token as a text, a value as its members; null for a value that does not decode, which
// its list does not look into.
struct Item
{
    std::string text;
    Json        value;
};

// A header field that was decoded: the members of a single value, or items.
struct Typed
{
    Json                members = Json::object();
    std::vector< Item > items   = {};
};
std::optional< Typed > TryDecode( const Family &family, SipsnMessageHeader *header );

inline constexpr const char *malformed = "malformed";

// The same as decode --json has it, under "members" or "items".
const char *KeyOf( const Family &family );
Json        Describe( const Family &family, const Typed &typed );

// The member of a header type that holds its items.
int64_t ItemsMember( const Family &family );

// Why a line by itself is not one of the header field, in words, and the index of the character at which it stops to be
// one.
struct Reason
{
    std::string words;
    int64_t     place;
};
std::optional< Reason > WhyNotLine( const Family &family, PbString *line );

} // namespace tool
