// The header names that are recognised without allocating, and the canonical form of those that are not.
#pragma once

#include "sipsn_internal.h"

namespace sipsn {

// Between these the names are known. Names that were shared before the start are taken as they are, so that a family's
// name constant and the name of a decoded header field are the same string.
void ShareHeaderName( PbString *name );
void StartHeaderNames();
void StopHeaderNames();

// How many names are known. Each has a number, and a name with a higher number comes later by code point.
inline constexpr int64_t headerNameCount = 104;

// The canonical name of that number, without a reference of its own.
PbString *HeaderNameAt( int64_t number );

// The name that a text begins with: how many token characters there are, none when it begins with no name, and the
// number of the known name that they are, in any letter case or compact; -1 for every other.
struct HeaderNameToken
{
    int64_t length;
    int64_t number;
};
HeaderNameToken ScanHeaderName( const PbChar *chs, int64_t length );
HeaderNameToken ScanHeaderName( const PbByte *bytes, int64_t length );

// A token in lower case but for the first letter of each word, as a new string.
PbString *CapitaliseHeaderName( const PbChar *chs, int64_t length );
PbString *CapitaliseHeaderName( const PbByte *bytes, int64_t length );

} // namespace sipsn
