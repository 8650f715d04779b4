// Values: decode and encode of each type, beside a floor: to scan the same text once with the type's production, which
// tells where it ends and keeps nothing.
#include "measure.h"
#include "values.h"

#include "pb/pb_frame.h"

#include <string>

namespace {

void MeasureScan( benchmark::State &state, const ValueSample &sample, PbString *text )
{
    const PbChar *chs    = pbStringBacking( text );
    const int64_t length = pbStringLength( text );
    if( sample.scan( chs, length ) != length ) return state.SkipWithError( "does not match" );
    MeasureBytes( state, length, [ & ] { benchmark::DoNotOptimize( sample.scan( chs, length ) ); } );
}

void MeasureDecode( benchmark::State &state, const ValueSample &sample, PbString *text )
{
    const PbChar *chs    = pbStringBacking( text );
    const int64_t length = pbStringLength( text );
    if( !pb::Ref{ sample.tryDecode( chs, length ) } ) return state.SkipWithError( "does not decode" );
    MeasureBytes( state, length, [ & ] { pb::Ref value{ sample.tryDecode( chs, length ) }; } );
}

void MeasureEncode( benchmark::State &state, const ValueSample &sample, PbString *text )
{
    pb::Ref value{ sample.tryDecode( pbStringBacking( text ), pbStringLength( text ) ) };
    if( !value ) return state.SkipWithError( "does not decode" );
    MeasureBytes( state, pbStringLength( text ), [ & ] { pb::Ref encoded{ sample.encode( value.Get() ) }; } );
}

struct Kind
{
    const char *name;
    void ( *measure )( benchmark::State &state, const ValueSample &sample, PbString *text );
};
constexpr Kind kinds[] = { { "Scan", MeasureScan }, { "Decode", MeasureDecode }, { "Encode", MeasureEncode } };

[[maybe_unused]] const bool registered = [] {
    for( const ValueSample &sample : ValueSamples() )
        for( const Kind &kind : kinds ) {
            const auto run = [ &sample, kind ]( benchmark::State &state ) {
                pb::Ref text{ pbStringCreateFromCstr( sample.text, -1 ) };
                kind.measure( state, sample, text.Get() );
            };
            const std::string name = kind.name + std::string{ "Value/" } + sample.type;
            benchmark::RegisterBenchmark( name.c_str(), run );
        }
    return true;
}();

} // namespace
