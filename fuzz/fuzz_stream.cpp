// A stream gives the same messages, and ends in the same state, in whatever pieces it is written; the reader reads the
// same. The first four bytes
// of the input say how long the pieces are; the rest is the stream.
#include "fuzz.h"

namespace {

struct Outcome
{
    pb::Ref< PbBuffer > messages{ pbBufferCreate() }; // the messages encoded, one after another
    bool                error = false;
    int64_t             left  = 0; // the bytes that wait for more
};

Outcome Run( const uint8_t *data, size_t size, const uint8_t ( &pieces )[ 4 ], bool whole )
{
    Outcome outcome;
    pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
    pb::Ref stream = fuzz::Buffer( data, size );
    int64_t piece  = 0;
    int64_t turn   = 0;
    for( int64_t at = 0; at < int64_t( size ); at += piece ) {
        piece = std::min( whole ? int64_t( size ) : pieces[ turn++ % 4 ] + int64_t( 1 ), int64_t( size ) - at );
        const bool taken = sipsnMessageStreamDecoderWriteInner( decoder.Get(), stream.Get(), at, piece );
        REQUIRE( taken == !sipsnMessageStreamDecoderError( decoder.Get() ) );
        while( pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) } ) {
            REQUIRE( sipsnMessageHasBody( message.Get() ) );
            pb::Ref encoded{ sipsnMessageEncode( message.Get() ) };
            pbBufferAppend( outcome.messages.Slot(), encoded.Get() );
        }
    }
    outcome.error = sipsnMessageStreamDecoderError( decoder.Get() );
    outcome.left  = outcome.error ? 0 : sipsnMessageStreamDecoderLength( decoder.Get() );
    return outcome;
}

pb::Ref< PbBuffer > ReadAll( const uint8_t *data, size_t size )
{
    pb::Ref           messages{ pbBufferCreate() };
    pb::Ref           stream = fuzz::Buffer( data, size );
    SipsnMessagePlace place{};
    SipsnFault        fault;
    while( pb::Ref message{ sipsnMessageTryDecodeNext( stream.Get(), SIPSN_FRAMING_STREAM, &place, &fault ) } ) {
        REQUIRE( sipsnMessageHasBody( message.Get() ) );
        pb::Ref encoded{ sipsnMessageEncode( message.Get() ) };
        pbBufferAppend( messages.Slot(), encoded.Get() );
    }
    return messages;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    uint8_t pieces[ 4 ];
    if( size < sizeof( pieces ) ) return 0;
    fuzz::Start();
    std::copy_n( data, sizeof( pieces ), pieces );

    const Outcome whole = Run( data + sizeof( pieces ), size - sizeof( pieces ), pieces, true );
    const Outcome split = Run( data + sizeof( pieces ), size - sizeof( pieces ), pieces, false );
    REQUIRE( pbBufferEquals( whole.messages.Get(), split.messages.Get() ) );
    REQUIRE( pbBufferEquals( whole.messages.Get(), ReadAll( data + 4, size - 4 ).Get() ) );
    REQUIRE( whole.error == split.error );
    REQUIRE( whole.left == split.left );
    return 0;
}
