// The store: a dictionary whose values are strings and stores.
#include "pb_store.h"

#include "pb_internal.h"

struct PbStore
{
    PbObj   obj;
    PbDict *entries;

    static constexpr auto Members() { return pb::Members{ &PbStore::entries }; }
};

namespace {

PbString *MakeText( PbStore *store ) { return pbDictToString( store->entries ); }

} // namespace

PB_DEFINE_TYPE( PbStore, pbStore, pb___sort_PB_STORE, "PB_STORE", pb___module, store, store, MakeText )

namespace {

pb::Ref< PbString > Key( const char *key, int64_t length )
{
    PB_ASSERT( key );
    return pb::Ref{ pbStringCreateFromCstr( key, length ) };
}

// What stands in a store, as a new reference, when it is of the sort; else null.
template< class T > T *RetainIf( PbSort *sort, PbObj *obj )
{
    return obj && obj->sort == sort ? reinterpret_cast< T * >( pb::Retain( obj ) ) : nullptr;
}

PbString *AsValue( PbObj *obj ) { return RetainIf< PbString >( pbStringSort(), obj ); }
PbStore  *AsStore( PbObj *obj ) { return RetainIf< PbStore >( pbStoreSort(), obj ); }

// The value is retained before the store is made unique: it may be the store itself.
void SetEntry( PbStore **store, PbString *key, PbObj *value )
{
    pb::Ref owned{ pb::Retain( value ) };
    PB_UNSHARE( store );
    pb___DictSetOwned( &( *store )->entries, pb::Retain( key ), owned.Detach() );
}

} // namespace

PbStore *pbStoreCreate( void )
{
    PbStore *store = pb::New< PbStore >();
    store->entries = pbDictCreate();
    return store;
}

int64_t pbStoreLength( PbStore *store )
{
    PB_ASSERT( store );
    return pbDictLength( store->entries );
}

PbString *pbStoreKeyAt( PbStore *store, int64_t index )
{
    PB_ASSERT( store );
    return pbDictKeyAt( store->entries, index );
}

PbString *pbStoreValueAt( PbStore *store, int64_t index )
{
    PB_ASSERT( store );
    return AsValue( pb___DictPeekValueAt( store->entries, index ) );
}

PbStore *pbStoreStoreAt( PbStore *store, int64_t index )
{
    PB_ASSERT( store );
    return AsStore( pb___DictPeekValueAt( store->entries, index ) );
}

PbString *pbStoreValue( PbStore *store, PbString *key )
{
    PB_ASSERT( store );
    return AsValue( pb___DictPeek( store->entries, key ) );
}

PbString *pbStoreValueCstr( PbStore *store, const char *key, int64_t length )
{
    return pbStoreValue( store, Key( key, length ).Get() );
}

PbStore *pbStoreStore( PbStore *store, PbString *key )
{
    PB_ASSERT( store );
    return AsStore( pb___DictPeek( store->entries, key ) );
}

PbStore *pbStoreStoreCstr( PbStore *store, const char *key, int64_t length )
{
    return pbStoreStore( store, Key( key, length ).Get() );
}

void pbStoreSetValue( PbStore **store, PbString *key, PbString *value )
{
    PB_ASSERT_SLOT( store );
    PB_ASSERT( key );
    PB_ASSERT( value );
    SetEntry( store, key, pb::AsObj( value ) );
}

void pbStoreSetValueCstr( PbStore **store, const char *key, int64_t length, PbString *value )
{
    pbStoreSetValue( store, Key( key, length ).Get(), value );
}

void pbStoreSetStore( PbStore **store, PbString *key, PbStore *value )
{
    PB_ASSERT_SLOT( store );
    PB_ASSERT( key );
    PB_ASSERT( value );
    SetEntry( store, key, pb::AsObj( value ) );
}

void pbStoreSetStoreCstr( PbStore **store, const char *key, int64_t length, PbStore *value )
{
    pbStoreSetStore( store, Key( key, length ).Get(), value );
}

void pbStoreDel( PbStore **store, PbString *key )
{
    PB_ASSERT_SLOT( store );
    PB_ASSERT( key );
    PB_UNSHARE( store );
    pbDictDelStringKey( &( *store )->entries, key );
}

void pbStoreDelCstr( PbStore **store, const char *key, int64_t length )
{
    pbStoreDel( store, Key( key, length ).Get() );
}
