// Dictionaries: against std::map as the model, across the border between array and tree, and on hostile input.
#include "text.h"

#include "pb/pb_internal.h"

#include <map>
#include <random>
#include <vector>

namespace {

using Model = std::map< std::string, std::string >;

void Set( pb::Ref< PbDict > &dict, std::string_view key, std::string_view value )
{
    pbDictSetStringKey( dict.Slot(), Str( key ).Get(), pbStringObj( Str( value ).Get() ) );
}

std::string Get( PbDict *dict, std::string_view key )
{
    const pb::Ref value{ pbDictStringKey( dict, Str( key ).Get() ) };
    return Text( pbStringFrom( value.Get() ) );
}

Model Contents( PbDict *dict, bool *ascending )
{
    Model       model;
    std::string previous;
    *ascending = true;
    for( int64_t i = 0; i < pbDictLength( dict ); ++i ) {
        const std::string key = Take( pbDictKeyAt( dict, i ) );
        if( i > 0 && !( previous < key ) ) *ascending = false;
        model[ key ] = Take( pbStringFrom( pbDictValueAt( dict, i ) ) );
        previous     = key;
    }
    return model;
}

std::vector< PbObj * > VisitedValues( PbDict *dict )
{
    using Values = std::vector< PbObj * >;

    Values values;
    pb___DictVisitValues(
        dict, []( void *seen, PbObj *value ) { static_cast< Values * >( seen )->push_back( value ); }, &values );
    return values;
}

void ExpectSame( PbDict *dict, const Model &model )
{
    std::vector< PbObj * > values;
    for( int64_t i = 0; i < pbDictLength( dict ); ++i ) values.push_back( pb___DictPeekValueAt( dict, i ) );
    EXPECT_EQ( VisitedValues( dict ), values );

    bool ascending = false;
    EXPECT_EQ( pbDictLength( dict ), int64_t( model.size() ) );
    EXPECT_EQ( Contents( dict, &ascending ), model );
    EXPECT_TRUE( ascending );
}

// Random insertions, replacements and deletions whose balance tips to and fro, so that the dictionary grows well past
// what an array holds and shrinks back, several times; shared copies taken on the way must stay as they were.
TEST( PbDict, BehavesLikeAMap )
{
    for( const int names : { 8, 90, 3000 } ) {
        std::mt19937      random{ unsigned( names ) };
        pb::Ref           dict{ pbDictCreate() };
        Model             model;
        pb::Ref< PbDict > snapshot;
        Model             snapshotModel;
        for( int step = 0; step < 20000; ++step ) {
            const std::string key     = std::to_string( random() % unsigned( names ) );
            const bool        growing = step / 4000 % 2 == 0;
            if( random() % 8 < ( growing ? 7u : 1u ) ) {
                Set( dict, key, std::to_string( step ) );
                model[ key ] = std::to_string( step );
            } else {
                pbDictDelStringKey( dict.Slot(), Str( key ).Get() );
                model.erase( key );
            }
            ASSERT_EQ( pbDictLength( dict.Get() ), int64_t( model.size() ) );
            const std::string probe = std::to_string( random() % unsigned( names ) );
            ASSERT_EQ( pbDictHasStringKey( dict.Get(), Str( probe ).Get() ), model.contains( probe ) );
            ASSERT_EQ( Get( dict.Get(), probe ), model.contains( probe ) ? model[ probe ] : "(null)" );
            if( step % 2500 == 0 ) {
                ExpectSame( dict.Get(), model );
                if( snapshot ) ExpectSame( snapshot.Get(), snapshotModel );
                snapshot      = pb::Ref{ pbDictRetain( dict.Get() ) };
                snapshotModel = model;
            }
        }
        ExpectSame( dict.Get(), model );
    }
}

// Every size around the border: filled, copied, compared, emptied one by one from either end.
TEST( PbDict, CrossesTheBorderBetweenArrayAndTree )
{
    for( int size = 28; size < 70; ++size ) {
        pb::Ref dict{ pb___DictCreateWithCapacity( size ) };
        Model   model;
        for( int i = size; i-- > 0; ) {
            const std::string key = std::to_string( 1000 + i );
            Set( dict, key, "v" );
            model[ key ] = "v";
        }
        const pb::Ref copy{ pbDictCreateFrom( dict.Get() ) };
        EXPECT_TRUE( pbDictEquals( copy.Get(), dict.Get() ) );
        while( !model.empty() ) {
            const std::string key = model.size() % 2 ? model.begin()->first : model.rbegin()->first;
            pbDictDelStringKey( dict.Slot(), Str( key ).Get() );
            model.erase( key );
            ExpectSame( dict.Get(), model );
        }
        EXPECT_EQ( pbDictLength( copy.Get() ), size );
    }
}

// Quadratic time would show: 100,000 names, in orders that unbalance a plain tree.
TEST( PbDict, StaysFastOnHostileInput )
{
    constexpr int count = 100'000;
    for( const int step : { 1, -1, 7919 } ) { // ascending, descending, strewn
        const auto nth = [ = ]( int i ) {
            const int64_t place = int64_t( i ) * step % count;
            return Str( std::to_string( count + ( place < 0 ? place + count : place ) ) );
        };
        pb::Ref dict{ pbDictCreate() };
        for( int i = 0; i < count; ++i )
            pb___DictSetOwned( dict.Slot(), nth( i ).Detach(), pbStringObj( nth( i ).Detach() ) );
        ASSERT_EQ( pbDictLength( dict.Get() ), count );
        for( int i = 0; i < count; i += 97 )
            ASSERT_EQ( Take( pbDictKeyAt( dict.Get(), i ) ), std::to_string( count + i ) );
        for( int i = 0; i < count; ++i ) pbDictDelStringKey( dict.Slot(), nth( i ).Get() );
        ASSERT_EQ( pbDictLength( dict.Get() ), 0 );
    }
}

// In an array and in a tree: the new key takes the place of the old one, a slot replaces the value alone.
TEST( PbDict, ReplacesInPlaceAndPrivately )
{
    for( const int others : { 0, 200 } ) {
        pb::Ref dict{ pbDictCreate() };
        for( int i = 0; i < others; ++i ) Set( dict, std::to_string( i ), "" );
        Set( dict, "Via", "old" );
        const pb::Ref key = Str( "Via" );
        pbDictSetStringKey( dict.Slot(), key.Get(), pbStringObj( Str( "new" ).Get() ) );
        EXPECT_EQ( pb___DictPeekKeyAt( dict.Get(), others ), key.Get() );

        const pb::Ref shared{ pbDictRetain( dict.Get() ) };
        PbObj       **slot = pb___DictSlot( dict.Slot(), Str( "Via" ).Get() );
        ASSERT_NE( slot, nullptr );
        pb::Release( std::exchange( *slot, pbStringObj( Str( "newer" ).Detach() ) ) );
        EXPECT_EQ( Get( dict.Get(), "Via" ), "newer" );
        EXPECT_EQ( Get( shared.Get(), "Via" ), "new" );
        EXPECT_EQ( pb___DictSlot( dict.Slot(), Str( "b" ).Get() ), nullptr );
    }
}

TEST( PbDict, DeletingAnAbsentKeyCopiesNothing )
{
    pb::Ref dict{ pbDictCreate() };
    Set( dict, "a", "1" );
    const pb::Ref shared{ pbDictRetain( dict.Get() ) };
    pbDictDelStringKey( dict.Slot(), Str( "b" ).Get() );
    EXPECT_EQ( dict.Get(), shared.Get() );
    pbDictClear( dict.Slot() );
    EXPECT_EQ( pbDictLength( dict.Get() ), 0 );
    EXPECT_EQ( pbDictLength( shared.Get() ), 1 );
}

TEST( PbDict, IsUsableAfterItWasCleared )
{
    for( const int count : { 3, 200 } ) {
        pb::Ref dict{ pbDictCreate() };
        for( int i = 0; i < count; ++i ) Set( dict, std::to_string( i ), "" );
        pbDictClear( dict.Slot() );
        for( const char *key : { "\U0001F600", "b", "\uFFFD", "", "aa", "B", "a" } ) Set( dict, key, key );
        const pb::Ref keys{ pbDictKeysVector( dict.Get() ) };
        const pb::Ref values{ pbDictValuesVector( dict.Get() ) };
        EXPECT_EQ( Take( pbVectorToString( keys.Get() ) ), ", B, a, aa, b, \uFFFD, \U0001F600" ); // by code point
        EXPECT_EQ( Take( pbVectorToString( values.Get() ) ), ", B, a, aa, b, \uFFFD, \U0001F600" );
    }
}

TEST( PbDict, ComparesKeyBeforeValueThenLength )
{
    const Model ascending[] = { {},
                                { { "a", "1" } },
                                { { "a", "1" }, { "b", "1" } },
                                { { "a", "2" } },
                                { { "aa", "1" } },
                                { { "b", "0" }, { "c", "0" } } };

    std::vector< pb::Ref< PbDict > > dicts;
    for( const Model &model : ascending ) {
        dicts.emplace_back( pbDictCreate() );
        for( const auto &[ key, value ] : model ) Set( dicts.back(), key, value );
    }
    ExpectAscending( dicts, pbDictCompare );
}

TEST( PbDictDeathTest, MisuseAborts )
{
    pb::Ref       dict{ pbDictCreate() };
    const pb::Ref key = Str( "a" );
    Set( dict, "a", "1" );
    EXPECT_ABORT( "index < dict->length", pbDictKeyAt( dict.Get(), 1 ) );
    EXPECT_ABORT( "index >= 0", pbDictValueAt( dict.Get(), -1 ) );
    EXPECT_ABORT( "key", pbDictSetStringKey( dict.Slot(), nullptr, pbDictObj( dict.Get() ) ) );
    EXPECT_ABORT( "value", pbDictSetStringKey( dict.Slot(), key.Get(), nullptr ) );
    EXPECT_ABORT( "key", pbDictHasStringKey( dict.Get(), nullptr ) );
}

} // namespace
