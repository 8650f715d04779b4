// The header fields that have a type: the families of header types, and what each makes of a header field.
#pragma once

#include "output.h"
#include "owned.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

enum class Shape
{
    list, // of values
    tokenList,
    tokenSet,
    single
};

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

struct Family
{
    const char *name; // canonical
    Shape       shape;
    const char *origin; // the document that says what it is now
    std::optional< Typed > ( *tryDecode )( SipsnMessageHeader *header );
};

std::span< const Family > Families();

// Null when the header field has no type.
const Family *FindFamily( std::string_view canonicalName );

// A line of a header field that its type refuses, from 0, and why, fit to be printed.
struct BadLine
{
    int64_t     index;
    std::string reason;
};
std::vector< BadLine > FindBadLines( const Family &family, SipsnMessageHeader *header );

} // namespace tool
