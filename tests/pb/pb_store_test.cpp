// Stores: values and sub-stores under one set of keys.
#include "text.h"

namespace {

void Set( pb::Ref< PbStore > &store, const char *key, const char *value )
{
    pbStoreSetValueCstr( store.Slot(), key, -1, Str( value ).Get() );
}

std::string Show( const pb::Ref< PbStore > &store ) { return Take( pbStoreToString( store.Get() ) ); }

std::string Value( const pb::Ref< PbStore > &store, const char *key )
{
    return Take( pbStoreValueCstr( store.Get(), key, -1 ) );
}

TEST( PbStore, HoldsValuesAndStoresUnderOneSetOfKeys )
{
    pb::Ref lines{ pbStoreCreate() };
    Set( lines, "1", "second" );
    Set( lines, "0", "first" );
    pb::Ref store{ pbStoreCreate() };
    Set( store, "name", "Via" );
    pbStoreSetStore( store.Slot(), Str( "lines" ).Get(), lines.Get() );
    EXPECT_EQ( Show( store ), "lines: 0: first, 1: second, name: Via" );

    EXPECT_EQ( Value( store, "name" ), "Via" );
    EXPECT_EQ( Value( store, "lines" ), "(null)" );
    EXPECT_EQ( Value( store, "none" ), "(null)" );
    EXPECT_EQ( pb::Ref{ pbStoreStoreCstr( store.Get(), "lines", -1 ) }.Get(), lines.Get() );
    EXPECT_EQ( pbStoreStore( store.Get(), Str( "name" ).Get() ), nullptr );
    EXPECT_EQ( pbStoreStoreCstr( store.Get(), "none", 4 ), nullptr );

    EXPECT_EQ( pbStoreLength( store.Get() ), 2 );
    EXPECT_EQ( Take( pbStoreKeyAt( store.Get(), 0 ) ), "lines" );
    EXPECT_EQ( pbStoreValueAt( store.Get(), 0 ), nullptr );
    EXPECT_EQ( pb::Ref{ pbStoreStoreAt( store.Get(), 0 ) }.Get(), lines.Get() );
    EXPECT_EQ( Take( pbStoreValueAt( store.Get(), 1 ) ), "Via" );
    EXPECT_EQ( pbStoreStoreAt( store.Get(), 1 ), nullptr );

    Set( store, "lines", "none" );
    EXPECT_EQ( Show( store ), "lines: none, name: Via" );
    pbStoreSetStoreCstr( store.Slot(), "name?", 4, lines.Get() );
    EXPECT_EQ( Value( store, "name" ), "(null)" );
    pbStoreDelCstr( store.Slot(), "name", -1 );
    pbStoreDel( store.Slot(), Str( "absent" ).Get() );
    EXPECT_EQ( Show( store ), "lines: none" );
}

TEST( PbStore, ChangesPrivatelyWhenShared )
{
    pb::Ref store{ pbStoreCreate() };
    Set( store, "a", "1" );
    const pb::Ref shared{ pbStoreRetain( store.Get() ) };
    const pb::Ref copy{ pbStoreCreateFrom( store.Get() ) };
    Set( store, "a", "2" );
    EXPECT_EQ( Value( store, "a" ), "2" );
    EXPECT_EQ( Value( shared, "a" ), "1" );
    pbStoreDelCstr( store.Slot(), "a", 1 );
    EXPECT_EQ( Show( copy ), "a: 1" );
    EXPECT_TRUE( pbStoreEquals( shared.Get(), copy.Get() ) );
    EXPECT_LT( pbStoreCompare( store.Get(), copy.Get() ), 0 );
}

TEST( PbStore, MayHoldItsFormerSelf )
{
    pb::Ref store{ pbStoreCreate() };
    Set( store, "a", "1" );
    pbStoreSetStoreCstr( store.Slot(), "b", 1, store.Get() );
    EXPECT_EQ( Show( store ), "a: 1, b: a: 1" );
}

TEST( PbStoreDeathTest, MisuseAborts )
{
    pb::Ref       store{ pbStoreCreate() };
    PbStore      *none = nullptr;
    const pb::Ref key  = Str( "a" );
    EXPECT_ABORT( "index < dict->length", pbStoreValueAt( store.Get(), 0 ) );
    EXPECT_ABORT( "value", pbStoreSetValue( store.Slot(), key.Get(), nullptr ) );
    EXPECT_ABORT( "*store", pbStoreSetValue( &none, key.Get(), key.Get() ) );
    EXPECT_ABORT( "key", pbStoreDel( store.Slot(), nullptr ) );
}

} // namespace
