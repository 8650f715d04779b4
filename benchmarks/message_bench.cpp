// Whole messages: decode, encode, round trip, decode with typed header fields, reply and stream, beside two floors:
// what it takes to copy the bytes, and to widen them to the 32 bits that a character of text has.
#include "measure.h"
#include "samples.h"

#include <algorithm>

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

// What needs bytes that decode.
template< auto operation > void MeasureDecoded( benchmark::State &state, PbBuffer *wire )
{
    if( !Decode( wire ) ) return state.SkipWithError( "does not decode" );
    MeasureBytes( state, pbBufferLength( wire ), [ = ] { operation( wire ); } );
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

void MeasureReply( benchmark::State &state, PbBuffer *wire )
{
    pb::Ref request = Decode( wire );
    if( !request || !sipsnMessageIsRequest( request.Get() ) ) return state.SkipWithError( "is no request" );
    pb::Ref tag{ pbStringCreateFromCstr( "a73kszlfl", -1 ) };
    pb::Ref encoded = Reply( request.Get(), tag.Get() );
    MeasureBytes( state, pbBufferLength( encoded.Get() ), [ & ] { Reply( request.Get(), tag.Get() ); } );
}

void MeasureStream( benchmark::State &state, PbBuffer *wire )
{
    MeasureBytes( state, pbBufferLength( wire ), [ = ] { Stream( wire ); } );
}

struct Kind
{
    const char *name;
    void ( *measure )( benchmark::State &state, PbBuffer *wire );
};
constexpr Kind kinds[] = {
    { "FloorCopy", FloorCopy },
    { "FloorWiden", FloorWiden },
    { "Decode", MeasureDecode },
    { "Encode", MeasureEncode },
    { "RoundTrip", MeasureDecoded< RoundTrip > },
    { "Full", MeasureDecoded< DecodeFull > },
    { "Reply", MeasureReply },
    { "Stream", MeasureStream },
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
