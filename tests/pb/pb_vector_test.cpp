// Vectors: their operations, growth, copy-on-write, order and text.
#include "text.h"

#include "pb/pb_internal.h"

#include <random>
#include <vector>

namespace {

pb::Ref< PbVector > Strings( std::initializer_list< const char * > texts )
{
    pb::Ref vector{ pbVectorCreate() };
    for( const char *text : texts ) pbVectorAppendString( vector.Slot(), Str( text ).Get() );
    return vector;
}

std::string Show( const pb::Ref< PbVector > &vector ) { return Take( pbVectorToString( vector.Get() ) ); }

// Random changes, of a vector that is shared now and then, when the other holder must keep what it held.
TEST( PbVector, BehavesLikeAVector )
{
    using Model = std::vector< std::string >;

    const auto show = []( const Model &model ) {
        std::string text;
        for( const std::string &item : model ) text += ( &item == model.data() ? "" : ", " ) + item;
        return text;
    };
    std::mt19937 random{ 1 };
    for( const int64_t capacity : { 0, 1, 5 } ) {
        pb::Ref vector{ pb___VectorCreateWithCapacity( capacity ) };
        Model   model;
        for( int step = 0; step < 5'000; ++step ) {
            pb::Ref< PbVector > holder;
            if( random() % 8 == 0 ) holder = pb::Ref{ pbVectorRetain( vector.Get() ) };
            const Model before = model;

            const std::string text  = std::to_string( step % 100 );
            const pb::Ref     item  = Str( text );
            const size_t      place = random() % 2 * ( random() % ( model.size() + 1 ) );
            const int64_t     index = int64_t( place );
            switch( random() % 7 ) {
            case 0:
                pbVectorAppendString( vector.Slot(), item.Get() );
                model.push_back( text );
                break;
            case 1:
                pbVectorPrependString( vector.Slot(), item.Get() );
                model.insert( model.begin(), text );
                break;
            case 2:
                pbVectorInsertString( vector.Slot(), index, item.Get() );
                model.insert( model.begin() + index, text );
                break;
            case 3:
                pb___VectorAppendOwned( vector.Slot(), pbStringObj( pbStringRetain( item.Get() ) ) );
                model.push_back( text );
                break;
            case 4:
                if( place == model.size() ) break;
                pbVectorSetStringAt( vector.Slot(), index, item.Get() );
                model[ place ] = text;
                break;
            default:
                if( place == model.size() ) break;
                pbVectorDelAt( vector.Slot(), index );
                model.erase( model.begin() + index );
            }
            if( random() % 1'000 == 0 ) {
                pbVectorClear( vector.Slot() );
                model.clear();
            }
            ASSERT_EQ( pbVectorLength( vector.Get() ), int64_t( model.size() ) );
            ASSERT_EQ( Show( vector ), show( model ) );
            if( holder ) {
                ASSERT_EQ( Show( holder ), show( before ) );
            }
        }
        EXPECT_TRUE( pbVectorContainsOnly( vector.Get(), pbStringSort() ) );
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
    pbVectorSetAt( vector.Slot(), 0, pb___VectorPeek( vector.Get(), 0 ) );
    EXPECT_EQ( Show( vector ), "a, a, a" );
}

TEST( PbVector, ComparesByElementThenLength )
{
    std::vector< pb::Ref< PbVector > > ascending;
    for( const auto &texts : std::initializer_list< std::initializer_list< const char * > >{
             {}, { "" }, { "", "" }, { "a" }, { "a", "b" }, { "a", "c" }, { "b" } } )
        ascending.push_back( Strings( texts ) );
    ExpectAscending( ascending, pbVectorCompare );
    EXPECT_EQ( Show( ascending[ 2 ] ), ", " );
}

TEST( PbVector, ContainsOnlySeesOneForeignElement )
{
    pb::Ref vector = Strings( { "a", "b" } );
    EXPECT_TRUE( pbVectorContainsOnly( vector.Get(), pbStringSort() ) );
    const pb::Ref empty{ pbVectorCreate() };
    EXPECT_TRUE( pbVectorContainsOnly( empty.Get(), pbStringSort() ) );
    pbVectorInsert( vector.Slot(), 1, pbVectorObj( empty.Get() ) );
    EXPECT_FALSE( pbVectorContainsOnly( vector.Get(), pbStringSort() ) );
    EXPECT_ABORT( "!obj || pbObjSort(obj)==&pb___sort_PB_STRING", pbVectorStringAt( vector.Get(), 1 ) );
}

TEST( PbVectorDeathTest, MisuseAborts )
{
    pb::Ref       vector = Strings( { "a" } );
    const pb::Ref string = Str( "" );
    PbVector     *none   = nullptr;
    EXPECT_ABORT( "index >= 0", pbVectorAt( vector.Get(), -1 ) );
    EXPECT_ABORT( "index < vector->length", pbVectorAt( vector.Get(), 1 ) );
    EXPECT_ABORT( "index >= 0", pbVectorDelAt( vector.Slot(), -1 ) );
    EXPECT_ABORT( "index < ( *vector )->length", pbVectorDelAt( vector.Slot(), 1 ) );
    EXPECT_ABORT( "index >= 0", pbVectorSetStringAt( vector.Slot(), -1, string.Get() ) );
    EXPECT_ABORT( "index < ( *vector )->length", pbVectorSetStringAt( vector.Slot(), 1, string.Get() ) );
    EXPECT_ABORT( "index >= 0", pbVectorInsertString( vector.Slot(), -1, string.Get() ) );
    EXPECT_ABORT( "index <= ( *vector )->length", pbVectorInsertString( vector.Slot(), 2, string.Get() ) );
    EXPECT_ABORT( "obj", pbVectorAppend( vector.Slot(), nullptr ) );
    EXPECT_ABORT( "*vector", pbVectorClear( &none ) );
}

} // namespace
