/* Memory. Exhausted memory ends the process through pb___Abort, so none of these returns null. */
#ifndef PB_MEM_H
#define PB_MEM_H

#include "pb_types.h"

PB_BEGIN_DECLS

/* `count` items of `size` bytes each, not zeroed; a negative or unrepresentable amount aborts. PbMemFree takes null. */
PB_API void *pbMemAllocN( int64_t count, int64_t size );
PB_API void *pbMemReallocN( void *memory, int64_t count, int64_t size );
PB_API void  pbMemFree( void *memory );

PB_END_DECLS
#endif
