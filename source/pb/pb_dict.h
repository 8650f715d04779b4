/* PbDict: a map from strings to objects, kept in ascending order of its keys by code point.
 *
 * Insertion and look-up, by key and by index, are O(log n). Functions that take `PbDict **` replace *dict by a private
 * copy when it is shared. Dictionaries compare entry by entry, key before value, then by length. The text is "key:
 * value" of each entry, joined by ", ". */
#ifndef PB_DICT_H
#define PB_DICT_H

#include "pb_vector.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( PbDict ), see pb_types.h */
typedef struct PbDict PbDict;

PB_API PbDict   *pbDictCreateFrom( PbDict *source );
PB_API PbDict   *pbDictRetain( PbDict *obj );
PB_API void      pbDictRelease( PbDict *obj );
PB_API PbObj    *pbDictObj( PbDict *obj );
PB_API PbDict   *pbDictFrom( PbObj *obj );
PB_API PbSort   *pbDictSort( void );
PB_API PbString *pbDictToString( PbDict *obj );
PB_API int64_t   pbDictCompare( PbDict *a, PbDict *b );
PB_API bool      pbDictEquals( PbDict *a, PbDict *b );
/* ./dev lists: end */

PB_API PbDict *pbDictCreate( void );
PB_API int64_t pbDictLength( PbDict *dict );

PB_API bool   pbDictHasStringKey( PbDict *dict, PbString *key );
PB_API PbObj *pbDictStringKey( PbDict *dict, PbString *key ); /* the value as a new reference, or null */

/* The entry at an index in key order, as new references; an index out of range aborts. */
PB_API PbString *pbDictKeyAt( PbDict *dict, int64_t index );
PB_API PbObj    *pbDictValueAt( PbDict *dict, int64_t index );

/* New vectors, in key order. */
PB_API PbVector *pbDictKeysVector( PbDict *dict );
PB_API PbVector *pbDictValuesVector( PbDict *dict );

/* Set inserts or replaces, and takes the given key object also when it replaces; deleting an absent key is not an
 * error. */
PB_API void pbDictSetStringKey( PbDict **dict, PbString *key, PbObj *value );
PB_API void pbDictDelStringKey( PbDict **dict, PbString *key );
PB_API void pbDictClear( PbDict **dict );

PB_END_DECLS
#endif
