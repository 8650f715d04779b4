// Runs one operation on one message or value so many times and nothing else, to be counted from outside:
//
//     sipsn_count [hold-]decode|encode|full|typed|reply|round-trip|stream FILE TIMES
//     sipsn_count [hold-]scan-value|decode-value|encode-value TYPE TIMES
//
// To hold is to release what was made only at the end, so that no memory is used again.
#include "samples.h"
#include "values.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr int notPossible = 3; // an exit status that valgrind itself does not give

struct Runs
{
    int64_t times;
    bool    hold; // what is made, to the end; it is released at once otherwise

    template< class Make > bool operator()( Make make ) const
    {
        std::vector< decltype( make() ) > held;
        held.reserve( size_t( times ) );
        for( int64_t n = 0; n < times; ++n ) {
            auto made = make();
            if( hold ) held.push_back( std::move( made ) );
        }
        return true;
    }
};

// False for an unknown operation, for bytes that do not decode, and for a reply to a response.
bool RunOnMessage( std::string_view operation, PbBuffer *wire, Runs runs )
{
    pb::Ref message = Decode( wire );
    if( !message ) return false;
    pb::Ref tag{ pbStringCreateFromCstr( "a73kszlfl", -1 ) };
    if( operation == "decode" ) return runs( [ & ] { return Decode( wire ); } );
    if( operation == "encode" ) return runs( [ & ] { return Encode( message.Get() ); } );
    if( operation == "full" ) return runs( [ & ] { return DecodeFull( wire ); } );
    if( operation == "typed" ) return runs( [ & ] { return DecodeTyped( wire ); } );
    if( operation == "reply" && sipsnMessageIsRequest( message.Get() ) )
        return runs( [ & ] { return Reply( message.Get(), tag.Get() ); } );
    if( operation == "round-trip" ) return runs( [ & ] { return RoundTrip( wire ); } );
    if( operation == "stream" ) return runs( [ & ] { return Stream( wire ); } );
    return false;
}

// The same for a type of value, and the operation without its ending.
bool RunOnValue( std::string_view operation, const ValueSample &sample, Runs runs )
{
    pb::Ref       text{ pbStringCreateFromCstr( sample.text, -1 ) };
    const PbChar *chs    = pbStringBacking( text.Get() );
    const int64_t length = pbStringLength( text.Get() );
    const auto    decode = [ & ] { return pb::Ref{ sample.tryDecode( chs, length ) }; };
    pb::Ref       value  = decode();
    if( !value || sample.scan( chs, length ) != length ) return false;
    if( operation == "scan" ) return runs( [ & ] { return sample.scan( chs, length ); } );
    if( operation == "decode" ) return runs( decode );
    if( operation == "encode" ) return runs( [ & ] { return pb::Ref{ sample.encode( value.Get() ) }; } );
    return false;
}

bool Run( std::string_view operation, std::string_view subject, int64_t times )
{
    constexpr std::string_view prefix = "hold-", ending = "-value";
    const Runs                 runs{ times, operation.starts_with( prefix ) };
    if( runs.hold ) operation.remove_prefix( prefix.size() );
    if( !operation.ends_with( ending ) ) {
        pb::Ref wire = ReadFile( subject );
        return wire && RunOnMessage( operation, wire.Get(), runs );
    }
    operation.remove_suffix( ending.size() );
    const auto samples = ValueSamples();
    const auto sample  = std::ranges::find( samples, subject, &ValueSample::type );
    return sample != samples.end() && RunOnValue( operation, *sample, runs );
}

} // namespace

int main( int argc, char **argv )
{
    if( argc != 4 ) {
        std::fputs( "sipsn_count [hold-]decode|encode|full|typed|reply|round-trip|stream FILE TIMES\n"
                    "sipsn_count [hold-]scan-value|decode-value|encode-value TYPE TIMES\n",
                    stderr );
        return 2;
    }
    pbModuleStart( sipsnModule() );
    const bool done = Run( argv[ 1 ], argv[ 2 ], std::atoll( argv[ 3 ] ) );
    pbModuleStop( sipsnModule() );
    return done ? 0 : notPossible;
}
