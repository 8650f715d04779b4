/* PbStore: a tree of named values, as kept in a configuration or a database: each key holds a string or a sub-store.
 *
 * Keys are kept in ascending order by code point; values and sub-stores share them, so setting one replaces the other.
 * Functions that take `PbStore **` replace *store by a private copy when it is shared. Stores compare like
 * dictionaries. */
#ifndef PB_STORE_H
#define PB_STORE_H

#include "pb_dict.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( PbStore ), see pb_types.h */
typedef struct PbStore PbStore;

PB_API PbStore  *pbStoreCreateFrom( PbStore *source );
PB_API PbStore  *pbStoreRetain( PbStore *obj );
PB_API void      pbStoreRelease( PbStore *obj );
PB_API PbObj    *pbStoreObj( PbStore *obj );
PB_API PbStore  *pbStoreFrom( PbObj *obj );
PB_API PbSort   *pbStoreSort( void );
PB_API PbString *pbStoreToString( PbStore *obj );
PB_API int64_t   pbStoreCompare( PbStore *a, PbStore *b );
PB_API bool      pbStoreEquals( PbStore *a, PbStore *b );
/* ./dev lists: end */

PB_API PbStore *pbStoreCreate( void );
PB_API int64_t  pbStoreLength( PbStore *store );

/* What stands at an index in key order, as a new reference: the key; the value, or null where a sub-store stands; the
 * sub-store, or null where a value stands. An index out of range aborts. */
PB_API PbString *pbStoreKeyAt( PbStore *store, int64_t index );
PB_API PbString *pbStoreValueAt( PbStore *store, int64_t index );
PB_API PbStore  *pbStoreStoreAt( PbStore *store, int64_t index );

/* The value or the sub-store under a key, as a new reference; null when there is none of that kind. */
PB_API PbString *pbStoreValue( PbStore *store, PbString *key );
PB_API PbString *pbStoreValueCstr( PbStore *store, const char *key, int64_t length );
PB_API PbStore  *pbStoreStore( PbStore *store, PbString *key );
PB_API PbStore  *pbStoreStoreCstr( PbStore *store, const char *key, int64_t length );

PB_API void pbStoreSetValue( PbStore **store, PbString *key, PbString *value );
PB_API void pbStoreSetValueCstr( PbStore **store, const char *key, int64_t length, PbString *value );
PB_API void pbStoreSetStore( PbStore **store, PbString *key, PbStore *value );
PB_API void pbStoreSetStoreCstr( PbStore **store, const char *key, int64_t length, PbStore *value );

/* Removes whatever stands under the key; an absent key is not an error. */
PB_API void pbStoreDel( PbStore **store, PbString *key );
PB_API void pbStoreDelCstr( PbStore **store, const char *key, int64_t length );

PB_END_DECLS
#endif
