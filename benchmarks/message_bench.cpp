// Whole messages: decode, encode, round trip, decode with typed header fields, reply, forward and stream, beside two
// floors: what it takes to copy the bytes, and to widen them to the 32 bits that a character of text has.
#include "measure.h"
#include "operations.h"

#include <algorithm>
#include <vector>

namespace {

void FloorCopy( benchmark::State &state, PbBuffer *wire )
{
    std::vector< PbByte > copy( size_t( pbBufferLength( wire ) ) );
    MeasureBytes( state, pbBufferLength( wire ), [ & ] {
        std::copy_n( pbBufferBacking( wire ), copy.size(), copy.data() );
        benchmark::DoNotOptimize( copy.data() );
        benchmark::ClobberMemory();
    } );
}

void FloorWiden( benchmark::State &state, PbBuffer *wire )
{
    std::vector< PbChar > copy( size_t( pbBufferLength( wire ) ) );
    MeasureBytes( state, pbBufferLength( wire ), [ & ] {
        std::copy_n( pbBufferBacking( wire ), copy.size(), copy.data() );
        benchmark::DoNotOptimize( copy.data() );
        benchmark::ClobberMemory();
    } );
}

void MeasureDecode( benchmark::State &state, PbBuffer *wire )
{
    MeasureBytes( state, pbBufferLength( wire ), [ = ] { Decode( wire ); } );
}

void MeasureEncode( benchmark::State &state, PbBuffer *wire )
{
    pb::Ref message = Decode( wire );
    if( !message ) return state.SkipWithError( "does not decode" );
    pb::Ref encoded = Encode( message.Get() );
    MeasureBytes( state, pbBufferLength( encoded.Get() ), [ & ] { Encode( message.Get() ); } );
}

void MeasureRoundTrip( benchmark::State &state, PbBuffer *wire )
{
    if( !Decode( wire ) ) return state.SkipWithError( "does not decode" );
    MeasureBytes( state, pbBufferLength( wire ), [ = ] { RoundTrip( wire ); } );
}

// The others by the names that they are counted under.
template< const auto &operation > void MeasureNamed( benchmark::State &state, PbBuffer *wire )
{
    const auto run = [ & ]( auto make ) { MeasureBytes( state, pbBufferLength( wire ), make ); };
    if( !RunOnMessage( operation, BytesOf( wire ), run ) ) state.SkipWithError( "does not decode, or is no request" );
}

struct Kind
{
    const char *name;
    void ( *measure )( benchmark::State &state, PbBuffer *wire );
};
constexpr char full[] = "full", all[] = "all", encodeTyped[] = "encode-typed", reply[] = "reply", forward[] = "forward",
               stream[] = "stream";
constexpr Kind kinds[]  = {
     { "FloorCopy", FloorCopy },           { "FloorWiden", FloorWiden },
     { "Decode", MeasureDecode },          { "Encode", MeasureEncode },
     { "RoundTrip", MeasureRoundTrip },    { "Full", MeasureNamed< full > },
     { "All", MeasureNamed< all > },       { "EncodeTyped", MeasureNamed< encodeTyped > },
     { "Reply", MeasureNamed< reply > },   { "Forward", MeasureNamed< forward > },
     { "Stream", MeasureNamed< stream > },
};

// Registered by file, so that what is compared stands together. Files are read when their benchmark runs, as buffers
// need the library started.
[[maybe_unused]] const bool registered = [] {
    for( const Sample &sample : Samples() )
        for( const Kind &kind : kinds ) {
            const auto run = [ path = sample.path, kind ]( benchmark::State &state ) {
                pb::Ref wire = ReadFile( path );
                if( !wire ) return state.SkipWithError( "cannot be read" );
                kind.measure( state, wire.Get() );
            };
            benchmark::RegisterBenchmark( ( kind.name + ( "/" + sample.name ) ).c_str(), run );
        }
    return true;
}();

} // namespace
