/* PbVector: an ordered list of objects, null not among them.
 *
 * Indexes count from 0; one out of range aborts. Functions that take `PbVector **` replace *vector by a private copy
 * when it is shared. Adding and deleting at either end is amortised O(1). Vectors compare element by element with
 * pbObjCompare, then by length. The text is the elements' texts joined by ", ". */
#ifndef PB_VECTOR_H
#define PB_VECTOR_H

#include "pb_string.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( PbVector ), see pb_types.h */
typedef struct PbVector PbVector;

PB_API PbVector *pbVectorCreateFrom( PbVector *source );
PB_API PbVector *pbVectorRetain( PbVector *obj );
PB_API void      pbVectorRelease( PbVector *obj );
PB_API PbObj    *pbVectorObj( PbVector *obj );
PB_API PbVector *pbVectorFrom( PbObj *obj );
PB_API PbSort   *pbVectorSort( void );
PB_API PbString *pbVectorToString( PbVector *obj );
PB_API int64_t   pbVectorCompare( PbVector *a, PbVector *b );
PB_API bool      pbVectorEquals( PbVector *a, PbVector *b );
/* ./dev lists: end */

PB_API PbVector *pbVectorCreate( void );
PB_API int64_t   pbVectorLength( PbVector *vector );

/* The element at an index as a new reference; StringAt aborts when it is not a string. */
PB_API PbObj    *pbVectorAt( PbVector *vector, int64_t index );
PB_API PbString *pbVectorStringAt( PbVector *vector, int64_t index );

/* Whether every element is of the sort; true for an empty vector. */
PB_API bool pbVectorContainsOnly( PbVector *vector, PbSort *sort );

/* Insert puts the object before the element at `index`; an index equal to the length appends. */
PB_API void pbVectorAppend( PbVector **vector, PbObj *obj );
PB_API void pbVectorAppendString( PbVector **vector, PbString *string );
PB_API void pbVectorPrepend( PbVector **vector, PbObj *obj );
PB_API void pbVectorPrependString( PbVector **vector, PbString *string );
PB_API void pbVectorInsert( PbVector **vector, int64_t index, PbObj *obj );
PB_API void pbVectorInsertString( PbVector **vector, int64_t index, PbString *string );
PB_API void pbVectorSetAt( PbVector **vector, int64_t index, PbObj *obj );
PB_API void pbVectorSetStringAt( PbVector **vector, int64_t index, PbString *string );
PB_API void pbVectorDelAt( PbVector **vector, int64_t index );
PB_API void pbVectorClear( PbVector **vector );

PB_END_DECLS
#endif
