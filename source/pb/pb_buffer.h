/* PbBuffer: a sequence of bytes.
 *
 * Indexes count from 0; one out of range aborts, as does a negative count. Functions that take `PbBuffer **` replace
 * *buffer by a private copy when it is shared. Appending and deleting from the front are amortised O(1) a byte:
 * deleting n bytes from the front never moves more than n bytes. Buffers compare by unsigned byte, then by length. The
 * text is the bytes in lower-case hexadecimal. */
#ifndef PB_BUFFER_H
#define PB_BUFFER_H

#include "pb_string.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( PbBuffer ), see pb_types.h */
typedef struct PbBuffer PbBuffer;

PB_API PbBuffer *pbBufferCreateFrom( PbBuffer *source );
PB_API PbBuffer *pbBufferRetain( PbBuffer *obj );
PB_API void      pbBufferRelease( PbBuffer *obj );
PB_API PbObj    *pbBufferObj( PbBuffer *obj );
PB_API PbBuffer *pbBufferFrom( PbObj *obj );
PB_API PbSort   *pbBufferSort( void );
PB_API PbString *pbBufferToString( PbBuffer *obj );
PB_API int64_t   pbBufferCompare( PbBuffer *a, PbBuffer *b );
PB_API bool      pbBufferEquals( PbBuffer *a, PbBuffer *b );
/* ./dev lists: end */

PB_API PbBuffer *pbBufferCreate( void );
PB_API PbBuffer *pbBufferCreateFromBytesCopy( const void *bytes, int64_t length );

PB_API int64_t       pbBufferLength( PbBuffer *buffer );
PB_API const PbByte *pbBufferBacking( PbBuffer *buffer ); /* valid while the buffer is unchanged and referenced */
PB_API PbByte        pbBufferByteAt( PbBuffer *buffer, int64_t index );

/* How many bytes can be appended before the buffer takes more memory. */
PB_API int64_t pbBufferSpace( PbBuffer *buffer );

PB_API void pbBufferAppend( PbBuffer **buffer, PbBuffer *source );
PB_API void pbBufferAppendBytes( PbBuffer **buffer, const void *bytes, int64_t length );

/* Append a part of the source: its first `count` bytes, its last, `count` from an index, and all but those. */
PB_API void pbBufferAppendLeading( PbBuffer **buffer, PbBuffer *source, int64_t count );
PB_API void pbBufferAppendTrailing( PbBuffer **buffer, PbBuffer *source, int64_t count );
PB_API void pbBufferAppendInner( PbBuffer **buffer, PbBuffer *source, int64_t index, int64_t count );
PB_API void pbBufferAppendOuter( PbBuffer **buffer, PbBuffer *source, int64_t index, int64_t count );

PB_API void pbBufferDelLeading( PbBuffer **buffer, int64_t count );

/* `count` bytes from an index as a new buffer. */
PB_API PbBuffer *pbBufferRead( PbBuffer *buffer, int64_t index, int64_t count );

PB_END_DECLS
#endif
