// One text of each type of value, and what is done with it.
#pragma once

#include "sipsn/sipsn.h"

#include <span>

using Scan = int64_t( const PbChar *chs, int64_t length );

struct ValueSample
{
    const char *type;
    const char *text;
    Scan       *scan; // matches the whole text
    PbObj *( *tryDecode )( const PbChar *chs, int64_t length );
    PbString *( *encode )( PbObj *value );
};
std::span< const ValueSample > ValueSamples();
