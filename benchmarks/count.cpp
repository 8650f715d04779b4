// Runs one operation on one message or value so many times and nothing else, to be counted from outside:
//
//     sipsn_count decode|hold-decoded|encode|hold-encoded|round-trip|stream FILE TIMES
//     sipsn_count scan-value|decode-value|hold-decoded-value|encode-value TYPE TIMES
//
// To hold is to release what was made only at the end, so that no memory is used again.
#include "samples.h"
#include "values.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

template< class Operation > bool Repeat( int64_t times, Operation operation )
{
    for( int64_t n = 0; n < times; ++n ) operation();
    return true;
}

template< class Make > bool Hold( int64_t times, Make make )
{
    using Made = decltype( make() );
    std::vector< Made > held;
    held.reserve( size_t( times ) );
    return Repeat( times, [ & ] { held.push_back( make() ); } );
}

// False for an unknown operation and for bytes that do not decode.
bool RunOnMessage( std::string_view operation, PbBuffer *wire, int64_t times )
{
    pb::Ref message{ sipsnMessageTryDecode( wire ) };
    if( !message ) return false;
    if( operation == "decode" ) return Repeat( times, [ & ] { Decode( wire ); } );
    if( operation == "encode" ) return Repeat( times, [ & ] { Encode( message.Get() ); } );
    if( operation == "hold-decoded" ) return Hold( times, [ & ] { return pb::Ref{ sipsnMessageTryDecode( wire ) }; } );
    if( operation == "hold-encoded" )
        return Hold( times, [ & ] { return pb::Ref{ sipsnMessageEncode( message.Get() ) }; } );
    if( operation == "round-trip" ) return Repeat( times, [ & ] { RoundTrip( wire ); } );
    if( operation == "stream" ) return Repeat( times, [ & ] { Stream( wire ); } );
    return false;
}

// The same for a type of value, and the operation without its ending.
bool RunOnValue( std::string_view operation, const ValueSample &sample, int64_t times )
{
    pb::Ref       text{ pbStringCreateFromCstr( sample.text, -1 ) };
    const PbChar *chs    = pbStringBacking( text.Get() );
    const int64_t length = pbStringLength( text.Get() );
    const auto    decode = [ & ] { return pb::Ref{ sample.tryDecode( chs, length ) }; };
    pb::Ref       value  = decode();
    if( !value || sample.scan( chs, length ) != length ) return false;
    const auto encode = [ & ] { return pb::Ref{ sample.encode( value.Get() ) }; };
    if( operation == "scan" ) return Repeat( times, [ & ] { sample.scan( chs, length ); } );
    if( operation == "decode" ) return Repeat( times, decode );
    if( operation == "encode" ) return Repeat( times, encode );
    if( operation == "hold-decoded" ) return Hold( times, decode );
    return false;
}

bool Run( std::string_view operation, std::string_view subject, int64_t times )
{
    constexpr std::string_view ending = "-value";
    if( !operation.ends_with( ending ) ) {
        pb::Ref wire = ReadFile( subject );
        return wire && RunOnMessage( operation, wire.Get(), times );
    }
    operation.remove_suffix( ending.size() );
    const auto samples = ValueSamples();
    const auto sample  = std::ranges::find( samples, subject, &ValueSample::type );
    return sample != samples.end() && RunOnValue( operation, *sample, times );
}

} // namespace

int main( int argc, char **argv )
{
    if( argc != 4 ) {
        std::fputs( "sipsn_count decode|hold-decoded|encode|hold-encoded|round-trip|stream FILE TIMES\n"
                    "sipsn_count scan-value|decode-value|hold-decoded-value|encode-value TYPE TIMES\n",
                    stderr );
        return 2;
    }
    pbModuleStart( sipsnModule() );
    const bool done = Run( argv[ 1 ], argv[ 2 ], std::atoll( argv[ 3 ] ) );
    pbModuleStop( sipsnModule() );
    return done ? 0 : 1;
}
