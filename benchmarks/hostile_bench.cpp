// Inputs that are made to take long, each in growing sizes: the time for one item must stay what it is.
#include "measure.h"
#include "samples.h"

#include "sipsn/sipsn_skip_internal.h"

#include <algorithm>
#include <random>
#include <string>

namespace {

using Text = std::basic_string< PbChar >;

Text Repeat( std::string_view item, int64_t count )
{
    Text text;
    for( int64_t n = 0; n < count; ++n ) text.append( item.begin(), item.end() );
    return text;
}

std::string RepeatBytes( std::string_view item, int64_t count )
{
    std::string text;
    for( int64_t n = 0; n < count; ++n ) text += item;
    return text;
}

constexpr std::string_view startLine = "OPTIONS sip:bob@example.com SIP/2.0\r\n";
constexpr std::string_view bodyless  = "OPTIONS sip:bob@example.com SIP/2.0\r\nContent-Length: 0\r\n\r\n";

void Counts( benchmark::internal::Benchmark *benchmark ) { benchmark->Arg( 1'000 )->Arg( 10'000 )->Arg( 100'000 ); }
void Sizes( benchmark::internal::Benchmark *benchmark )
{
    benchmark->Arg( 16 << 10 )->Arg( 128 << 10 )->Arg( 1 << 20 );
}

// ---- Decoding and encoding ---------------------------------------------------------------------------

// Header fields with the names X-100000, X-100001, ... in some order.
template< class Order > std::string DistinctFields( int64_t count, Order order )
{
    std::vector< int64_t > numbers;
    for( int64_t n = 0; n < count; ++n ) numbers.push_back( 100'000 + n );
    order( numbers );
    std::string text{ startLine };
    for( int64_t number : numbers ) text += "X-" + std::to_string( number ) + ": value\r\n";
    return text + "\r\n";
}

std::string AscendingFields( int64_t count )
{
    return DistinctFields( count, []( auto & ) {} );
}
std::string DescendingFields( int64_t count )
{
    return DistinctFields( count, []( auto &numbers ) { std::ranges::reverse( numbers ); } );
}
std::string ShuffledFields( int64_t count )
{
    return DistinctFields( count, []( auto &numbers ) { std::ranges::shuffle( numbers, std::minstd_rand{ 1 } ); } );
}
std::string FieldsOfOneName( int64_t count )
{
    return std::string{ startLine } + RepeatBytes( "Via: SIP/2.0/UDP h\r\n", count ) + "\r\n";
}
std::string FoldedField( int64_t count )
{
    return std::string{ startLine } + "Subject: a\r\n" + RepeatBytes( " b\r\n", count ) + "\r\n";
}
std::string EmptyLines( int64_t count ) { return std::string{ startLine } + RepeatBytes( "\n", count ); }

template< class Make > void MeasureDecode( benchmark::State &state, Make make )
{
    pb::Ref wire = BufferOf( make( state.range() ) );
    if( !pb::Ref{ sipsnMessageTryDecode( wire.Get() ) } ) return state.SkipWithError( "does not decode" );
    MeasureGrowth( state, state.range(), [ & ] { Decode( wire.Get() ); } );
}
BENCHMARK_CAPTURE( MeasureDecode, ascending, AscendingFields )->Name( "HostileDecodeAscendingNames" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureDecode, descending, DescendingFields )
    ->Name( "HostileDecodeDescendingNames" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureDecode, shuffled, ShuffledFields )->Name( "HostileDecodeShuffledNames" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureDecode, one, FieldsOfOneName )->Name( "HostileDecodeOneName" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureDecode, folded, FoldedField )->Name( "HostileDecodeFoldedLines" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureDecode, empty, EmptyLines )->Name( "HostileDecodeEmptyLines" )->Apply( Counts );

template< class Make > void MeasureEncode( benchmark::State &state, Make make )
{
    pb::Ref wire = BufferOf( make( state.range() ) );
    pb::Ref message{ sipsnMessageTryDecode( wire.Get() ) };
    if( !message ) return state.SkipWithError( "does not decode" );
    MeasureGrowth( state, state.range(), [ & ] { Encode( message.Get() ); } );
}
BENCHMARK_CAPTURE( MeasureEncode, shuffled, ShuffledFields )->Name( "HostileEncodeManyNames" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureEncode, one, FieldsOfOneName )->Name( "HostileEncodeOneName" )->Apply( Counts );

// One field after another set in a message that is built.
void SetHeaders( benchmark::State &state )
{
    pb::Ref version{ sipsnVersionCreateSip20() };
    MeasureGrowth( state, state.range(), [ & ] {
        pb::Ref message{ sipsnMessageCreateResponse( version.Get(), 200 ) };
        for( int64_t n = 0; n < state.range(); ++n ) {
            const std::string name = "X-" + std::to_string( n );
            pb::Ref           header{ sipsnMessageHeaderCreateCstr( name.data(), int64_t( name.size() ) ) };
            sipsnMessageSetHeader( message.Slot(), header.Get() );
        }
    } );
}
BENCHMARK( SetHeaders )->Name( "HostileSetHeaders" )->Apply( Counts );

// ---- Streams -----------------------------------------------------------------------------------------

void MeasureStream( benchmark::State &state, const std::string &bytes )
{
    pb::Ref wire = BufferOf( bytes );
    MeasureGrowth( state, state.range(), [ & ] { Stream( wire.Get() ); } );
}

void KeepAlives( benchmark::State &state ) { MeasureStream( state, RepeatBytes( "\r\n", state.range() / 2 ) ); }
BENCHMARK( KeepAlives )->Name( "HostileStreamKeepAlives" )->Apply( Sizes );

void Pipelined( benchmark::State &state ) { MeasureStream( state, RepeatBytes( bodyless, state.range() ) ); }
BENCHMARK( Pipelined )->Name( "HostileStreamPipelined" )->Apply( Counts );

// Reads after every byte, as the owner of a slow connection does.
void MeasureByteByByte( benchmark::State &state, const std::string &bytes )
{
    pb::Ref wire = BufferOf( bytes );
    MeasureGrowth( state, int64_t( bytes.size() ), [ & ] {
        pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
        for( int64_t at = 0; at < pbBufferLength( wire.Get() ); ++at ) {
            sipsnMessageStreamDecoderWriteInner( decoder.Get(), wire.Get(), at, 1 );
            pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) };
        }
    } );
}

void EndlessHeaderBlock( benchmark::State &state )
{
    MeasureByteByByte( state, RepeatBytes( "\r\nx", state.range() / 3 ) );
}
BENCHMARK( EndlessHeaderBlock )->Name( "HostileStreamEndlessHeaders" )->Apply( Sizes );

void BodylessMessages( benchmark::State &state )
{
    MeasureByteByByte( state, RepeatBytes( bodyless, state.range() / int64_t( bodyless.size() ) ) );
}
BENCHMARK( BodylessMessages )->Name( "HostileStreamBytewiseMessages" )->Apply( Sizes );

void LargeBody( benchmark::State &state )
{
    MeasureByteByByte( state, std::string{ startLine } + "Content-Length: " + std::to_string( state.range() ) +
                                  "\r\n\r\n" + std::string( size_t( state.range() ), 'x' ) );
}
BENCHMARK( LargeBody )->Name( "HostileStreamBytewiseBody" )->Apply( Sizes );

// ---- The scanner -------------------------------------------------------------------------------------

using Production = int64_t( const PbChar *chs, int64_t length );

// Items with COMMA between them, as a decoder of lists reads them.
int64_t SkipList( const Text &text, Production *item )
{
    const PbChar *chs    = text.data();
    const int64_t length = int64_t( text.size() );
    int64_t       at     = item( chs, length );
    for( ;; ) {
        const int64_t comma = sipsn___SkipComma( chs + at, length - at );
        if( comma == 0 ) return at;
        at += comma;
        at += item( chs + at, length - at );
    }
}

void MeasureList( benchmark::State &state, std::string_view item, Production *production )
{
    const Text text = Repeat( item, state.range() );
    MeasureGrowth( state, state.range(), [ & ] { benchmark::DoNotOptimize( SkipList( text, production ) ); } );
}
BENCHMARK_CAPTURE( MeasureList, via, "SIP/2.0/UDP host;branch=z9hG4bK1, ", sipsn___SkipVia )
    ->Name( "HostileSkipViaList" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureList, route, "<sip:proxy.example.com;lr>, ", sipsn___SkipRoute )
    ->Name( "HostileSkipRouteList" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureList, contact, "Bob <sip:bob@192.0.2.4>;q=0.5, ", sipsn___SkipContact )
    ->Name( "HostileSkipContactList" )
    ->Apply( Counts );

// One production on `before` and so many items.
void MeasureSkip( benchmark::State &state, std::string_view before, std::string_view item, std::string_view after,
                  Production *production )
{
    const Text text = Repeat( before, 1 ) + Repeat( item, state.range() ) + Repeat( after, 1 );
    MeasureGrowth( state, state.range(),
                   [ & ] { benchmark::DoNotOptimize( production( text.data(), int64_t( text.size() ) ) ); } );
}
BENCHMARK_CAPTURE( MeasureSkip, params, "", ";name=value", "", sipsn___SkipGenericParams )
    ->Name( "HostileSkipParameters" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, via, "SIP/2.0/UDP h", ";received=x", "", sipsn___SkipVia )
    ->Name( "HostileSkipViaParameters" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, opened, "", "(", "", sipsn___SkipComment )
    ->Name( "HostileSkipOpenComments" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, server, "", "(", "", sipsn___SkipServer )
    ->Name( "HostileSkipOpenServer" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, blanks, "x", " ", "", sipsn___SkipServer )
    ->Name( "HostileSkipBlanks" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, words, "", "a ", "", sipsn___SkipContact )->Name( "HostileSkipWords" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, labels, "", "a.", "", sipsn___SkipHost )->Name( "HostileSkipLabels" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, escapes, "", "%41", "", sipsn___SkipUser )
    ->Name( "HostileSkipEscapes" )
    ->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, iri, "sip:", "a@", "", sipsn___SkipUri )->Name( "HostileSkipUri" )->Apply( Counts );
BENCHMARK_CAPTURE( MeasureSkip, index, "1", ".1", "", sipsn___SkipHistoryInfoIndex )
    ->Name( "HostileSkipIndex" )
    ->Apply( Counts );

void NestedComments( benchmark::State &state )
{
    const Text text = Repeat( "(", state.range() ) + Repeat( ")", state.range() );
    MeasureGrowth( state, state.range(),
                   [ & ] { benchmark::DoNotOptimize( sipsn___SkipComment( text.data(), int64_t( text.size() ) ) ); } );
}
BENCHMARK( NestedComments )->Name( "HostileSkipNestedComments" )->Apply( Counts );

} // namespace
