// Vectors: their operations, growth, copy-on-write, order and text.
#include "text.h"

#include "pb/pb_internal.h"

#include <gmock/gmock.h>

namespace {

pb::Ref< PbVector > Strings( std::initializer_list< const char * > texts )
{
    pb::Ref vector{ pbVectorCreate() };
    for( const char *text : texts ) pbVectorAppendString( vector.Slot(), Str( text ).Get() );
    return vector;
}

std::string Show( const pb::Ref< PbVector > &vector ) { return Take( pbVectorToString( vector.Get() ) ); }

TEST( PbVector, OperationsKeepTheOrder )
{
    pb::Ref vector = Strings( { "b", "d" } );
    pbVectorPrependString( vector.Slot(), Str( "a" ).Get() );
    pbVectorInsertString( vector.Slot(), 2, Str( "c" ).Get() );
    pbVectorInsertString( vector.Slot(), 4, Str( "e" ).Get() );
    EXPECT_EQ( Show( vector ), "a, b, c, d, e" );
    pbVectorSetStringAt( vector.Slot(), 1, Str( "B" ).Get() );
    pbVectorDelAt( vector.Slot(), 0 );
    pbVectorDelAt( vector.Slot(), 3 );
    EXPECT_EQ( Show( vector ), "B, c, d" );
    EXPECT_EQ( Take( pbVectorStringAt( vector.Get(), 2 ) ), "d" );
    pbVectorClear( vector.Slot() );
    EXPECT_EQ( pbVectorLength( vector.Get() ), 0 );
    EXPECT_EQ( Show( vector ), "" );
}

TEST( PbVector, EmptyTextsAreStillSeparated ) { EXPECT_EQ( Show( Strings( { "", "a", "" } ) ), ", a, " ); }

// Each change, applied to a shared vector, gives the holder of the slot a private copy.
TEST( PbVector, SharedVectorIsCopiedBeforeAChange )
{
    const pb::Ref string = Str( "x" );
    const struct
    {
        void ( *change )( PbVector **, PbString * );
        const char *after;
    } cases[] = {
        { []( PbVector **v, PbString *s ) { pbVectorAppendString( v, s ); }, "a, b, x" },
        { []( PbVector **v, PbString *s ) { pbVectorPrependString( v, s ); }, "x, a, b" },
        { []( PbVector **v, PbString *s ) { pbVectorInsertString( v, 1, s ); }, "a, x, b" },
        { []( PbVector **v, PbString *s ) { pbVectorSetStringAt( v, 1, s ); }, "a, x" },
        { []( PbVector **v, PbString * ) { pbVectorDelAt( v, 0 ); }, "b" },
        { []( PbVector **v, PbString * ) { pbVectorClear( v ); }, "" },
    };
    for( const auto &c : cases ) {
        pb::Ref original = Strings( { "a", "b" } );
        pb::Ref changed{ pbVectorRetain( original.Get() ) };
        c.change( changed.Slot(), string.Get() );
        EXPECT_EQ( Show( original ), "a, b" ) << c.after;
        EXPECT_EQ( Show( changed ), c.after );
        EXPECT_FALSE( pb::IsShared( original.Get() ) );
    }
}

TEST( PbVector, CopySharesItsElements )
{
    const pb::Ref original = Strings( { "a" } );
    const pb::Ref copy{ pbVectorCreateFrom( original.Get() ) };
    EXPECT_NE( copy.Get(), original.Get() );
    EXPECT_EQ( pb___VectorPeek( copy.Get(), 0 ), pb___VectorPeek( original.Get(), 0 ) );
}

TEST( PbVector, AppendedToItselfHoldsItsFormerSelf )
{
    pb::Ref vector = Strings( { "a" } );
    pbVectorAppend( vector.Slot(), pbVectorObj( vector.Get() ) );
    EXPECT_EQ( pbVectorLength( vector.Get() ), 2 );
    EXPECT_EQ( Show( vector ), "a, a" );
    pbVectorSetAt( vector.Slot(), 0, pbVectorObj( vector.Get() ) );
    EXPECT_EQ( Show( vector ), "a, a, a" );
}

TEST( PbVector, ReplacingAnElementByItselfKeepsIt )
{
    pb::Ref vector = Strings( { "a" } );
    pbVectorSetAt( vector.Slot(), 0, pb___VectorPeek( vector.Get(), 0 ) );
    EXPECT_EQ( Show( vector ), "a" );
}

TEST( PbVector, GrowsFromAnyCapacity )
{
    const pb::Ref string = Str( "x" );
    for( const int64_t capacity : { 0, 1, 5 } ) {
        pb::Ref vector{ pb___VectorCreateWithCapacity( capacity ) };
        for( int i = 0; i < 1000; ++i )
            pb___VectorAppendOwned( vector.Slot(), pbStringObj( pbStringRetain( string.Get() ) ) );
        EXPECT_EQ( pbVectorLength( vector.Get() ), 1000 );
        EXPECT_TRUE( pbVectorContainsOnly( vector.Get(), pbStringSort() ) );
    }
}

TEST( PbVector, ComparesByElementThenLength )
{
    const std::initializer_list< const char * > ascending[] = { {}, { "a" }, { "a", "b" }, { "a", "c" }, { "b" } };
    for( const auto &left : ascending )
        for( const auto &right : ascending ) {
            const int64_t order = pbVectorCompare( Strings( left ).Get(), Strings( right ).Get() );
            EXPECT_EQ( order < 0, &left < &right );
            EXPECT_EQ( order > 0, &left > &right );
        }
}

TEST( PbVector, ContainsOnlySeesOneForeignElement )
{
    pb::Ref vector = Strings( { "a", "b" } );
    EXPECT_TRUE( pbVectorContainsOnly( vector.Get(), pbStringSort() ) );
    const pb::Ref empty{ pbVectorCreate() };
    EXPECT_TRUE( pbVectorContainsOnly( empty.Get(), pbStringSort() ) );
    pbVectorInsert( vector.Slot(), 1, pbVectorObj( empty.Get() ) );
    EXPECT_FALSE( pbVectorContainsOnly( vector.Get(), pbStringSort() ) );
    EXPECT_DEATH( pbVectorStringAt( vector.Get(), 1 ), "pb___sort_PB_STRING" );
}

TEST( PbVectorDeathTest, MisuseAborts )
{
    pb::Ref   vector = Strings( { "a" } );
    PbVector *none   = nullptr;
    EXPECT_DEATH( pbVectorAt( vector.Get(), -1 ), "index >= 0" );
    EXPECT_DEATH( pbVectorAt( vector.Get(), 1 ), "index < vector->length" );
    EXPECT_DEATH( pbVectorDelAt( vector.Slot(), 1 ), "index < " );
    EXPECT_DEATH( pbVectorSetStringAt( vector.Slot(), 1, Str( "" ).Get() ), "index < " );
    EXPECT_DEATH( pbVectorInsertString( vector.Slot(), 2, Str( "" ).Get() ), "index <= " );
    EXPECT_DEATH( pbVectorAppend( vector.Slot(), nullptr ), "obj" );
    EXPECT_DEATH( pbVectorClear( &none ), "\\*vector" );
}

} // namespace
