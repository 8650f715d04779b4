// Buffers: against std::string as the model, appended parts, and deleting from the front.
#include "text.h"

#include "pb/pb_internal.h"

#include <random>
#include <vector>

namespace {

using namespace std::string_view_literals;

pb::Ref< PbBuffer > Buf( std::string_view bytes )
{
    return pb::Ref{ pbBufferCreateFromBytesCopy( bytes.data(), int64_t( bytes.size() ) ) };
}

std::string Bytes( PbBuffer *buffer )
{
    return { reinterpret_cast< const char * >( pbBufferBacking( buffer ) ), size_t( pbBufferLength( buffer ) ) };
}

std::string Bytes( const pb::Ref< PbBuffer > &buffer ) { return Bytes( buffer.Get() ); }

// Random appends from other buffers, from loose bytes, from the buffer itself and from its own backing, deletions and
// reading; shared now and then, when the other holder must keep what it held.
TEST( PbBuffer, BehavesLikeAString )
{
    std::mt19937 random( 1 );
    pb::Ref      buffer{ pbBufferCreate() };
    std::string  model;
    for( int step = 0; step < 20000; ++step ) {
        const auto upTo = [ & ]( size_t limit ) { return int64_t( random() % ( limit + 1 ) ); };

        pb::Ref< PbBuffer > holder;
        if( random() % 8 == 0 ) holder = pb::Ref{ pbBufferRetain( buffer.Get() ) };
        const std::string before = model;

        const std::string fresh( size_t( upTo( 40 ) ), char( 'a' + step % 26 ) );
        const pb::Ref     other  = Buf( fresh );
        const bool        self   = random() % 4 == 0 && model.size() < 500;
        PbBuffer         *source = self ? buffer.Get() : other.Get();
        const std::string from   = self ? model : fresh;
        const int64_t     count  = upTo( from.size() );
        const int64_t     index  = upTo( from.size() - size_t( count ) );
        switch( random() % 9 ) {
        case 0:
            pbBufferAppend( buffer.Slot(), source );
            model += from;
            break;
        case 1:
            pbBufferAppendLeading( buffer.Slot(), source, count );
            model += from.substr( 0, size_t( count ) );
            break;
        case 2:
            pbBufferAppendTrailing( buffer.Slot(), source, count );
            model += from.substr( from.size() - size_t( count ) );
            break;
        case 3:
            pbBufferAppendInner( buffer.Slot(), source, index, count );
            model += from.substr( size_t( index ), size_t( count ) );
            break;
        case 4:
            pbBufferAppendOuter( buffer.Slot(), source, index, count );
            model += std::string( from ).erase( size_t( index ), size_t( count ) );
            break;
        case 5:
            pbBufferAppendBytes( buffer.Slot(), pbBufferBacking( source ) + index, count );
            model += from.substr( size_t( index ), size_t( count ) );
            break;
        default: {
            const int64_t deleted = upTo( std::min< size_t >( model.size(), 60 ) );
            pbBufferDelLeading( buffer.Slot(), deleted );
            model.erase( 0, size_t( deleted ) );
        }
        }
        ASSERT_EQ( Bytes( buffer ), model ) << step;
        if( !model.empty() ) {
            const size_t first = size_t( upTo( model.size() - 1 ) ),
                         size  = std::min< size_t >( 9, model.size() - first );
            ASSERT_EQ( pbBufferByteAt( buffer.Get(), int64_t( first ) ), PbByte( model[ first ] ) );
            ASSERT_EQ( Bytes( pb::Ref{ pbBufferRead( buffer.Get(), int64_t( first ), int64_t( size ) ) } ),
                       model.substr( first, size ) );
        }
        if( holder ) {
            ASSERT_EQ( Bytes( holder ), before ) << step;
        }
    }
}

// A stream cut into messages: many, out of one buffer. Moving the rest for each would take minutes.
TEST( PbBuffer, DeletingFromTheFrontIsLinear )
{
    constexpr int64_t size = 200;
    pb::Ref           buffer{ pbBufferCreate() };
    const std::string message( size, 'm' );
    for( int i = 0; i < 100'000; ++i ) pbBufferAppendBytes( buffer.Slot(), message.data(), size );
    for( int i = 0; i < 100'000; ++i ) pbBufferDelLeading( buffer.Slot(), size );
    EXPECT_EQ( pbBufferLength( buffer.Get() ), 0 );
}

TEST( PbBuffer, ReusesTheDeletedFrontInsteadOfGrowing )
{
    pb::Ref           buffer{ pbBufferCreate() };
    const std::string message( 300, 'm' );
    pbBufferAppendBytes( buffer.Slot(), message.data(), 300 );
    for( int i = 0; i < 100'000; ++i ) {
        pbBufferAppendBytes( buffer.Slot(), message.data(), 300 );
        pbBufferDelLeading( buffer.Slot(), 300 );
    }
    EXPECT_LT( pbBufferSpace( buffer.Get() ), 3000 );
}

TEST( PbBuffer, SpaceIsExactlyWhatFitsWithoutMoreMemory )
{
    for( const int64_t deleted : { 0, 10, 60, 90, 100 } ) {
        const std::string bytes( 100, 'x' );
        pb::Ref           buffer = Buf( bytes );
        pbBufferAppendBytes( buffer.Slot(), bytes.data(), 1 ); // grows
        pbBufferDelLeading( buffer.Slot(), deleted );
        const int64_t   space = pbBufferSpace( buffer.Get() );
        PbBuffer *const block = buffer.Get();
        ASSERT_GT( space, 0 );
        for( int64_t i = 0; i < space; ++i ) {
            EXPECT_EQ( pbBufferSpace( buffer.Get() ), space - i );
            pbBufferAppendBytes( buffer.Slot(), bytes.data(), 1 );
        }
        EXPECT_EQ( buffer.Get(), block );
        EXPECT_EQ( pbBufferSpace( buffer.Get() ), 0 );
        pbBufferAppendBytes( buffer.Slot(), bytes.data(), 1 );
        EXPECT_GT( pbBufferSpace( buffer.Get() ), 0 );
        EXPECT_EQ( Bytes( buffer ), std::string( size_t( 102 - deleted + space ), 'x' ) );
    }
}

TEST( PbBuffer, ComparesUnsignedThenByLengthAndShowsHexadecimal )
{
    std::vector< pb::Ref< PbBuffer > > ascending;
    for( const std::string_view bytes : { ""sv, "\0"sv, "a"sv, "ab"sv, "b"sv, "\x7f"sv, "\x80"sv, "\xff"sv } )
        ascending.push_back( Buf( bytes ) );
    ExpectAscending( ascending, pbBufferCompare );
    EXPECT_EQ( Take( pbBufferToString( Buf( "\x0f\xa0z" ).Get() ) ), "0fa07a" );
}

TEST( PbBufferDeathTest, RangesAreCheckedWithoutOverflow )
{
    pb::Ref       buffer = Buf( "abc" );
    const pb::Ref source = Buf( "abc" );
    EXPECT_ABORT( "index >= 0", pbBufferByteAt( buffer.Get(), -1 ) );
    EXPECT_ABORT( "index < buffer->length", pbBufferByteAt( buffer.Get(), 3 ) );
    EXPECT_ABORT( "count <= ( *buffer )->length", pbBufferDelLeading( buffer.Slot(), 4 ) );
    EXPECT_ABORT( "count >= 0", pbBufferDelLeading( buffer.Slot(), -1 ) );
    EXPECT_ABORT( "count <= source->length", pbBufferAppendLeading( buffer.Slot(), source.Get(), 4 ) );
    EXPECT_ABORT( "count <= source->length", pbBufferAppendTrailing( buffer.Slot(), source.Get(), 4 ) );
    EXPECT_ABORT( "index <= source->length - count", pbBufferAppendInner( buffer.Slot(), source.Get(), INT64_MAX, 1 ) );
    EXPECT_ABORT( "count <= source->length", pbBufferAppendInner( buffer.Slot(), source.Get(), 1, INT64_MAX ) );
    EXPECT_ABORT( "count <= source->length", pbBufferAppendOuter( buffer.Slot(), source.Get(), 1, INT64_MAX ) );
    EXPECT_ABORT( "count <= buffer->length", pbBufferRead( buffer.Get(), 1, INT64_MAX ) );
    EXPECT_ABORT( "bytes || length == 0", pbBufferCreateFromBytesCopy( nullptr, 1 ) );
    EXPECT_ABORT( "length >= 0", pbBufferCreateFromBytesCopy( "", -1 ) );
}

} // namespace
