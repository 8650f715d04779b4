/* SipsnMessageStreamDecoder: cuts the bytes of a stream transport into messages, RFC 3261 sections 18.3 and 7.5.
 *
 * Bytes are written in whatever pieces they arrive; complete messages are read one by one. CR LF pairs between
 * messages, the keep-alives of RFC 5626 section 3.5.1, are skipped. On a stream every message must have a
 * Content-Length; a header block that is malformed, that lacks it or a start line, puts the decoder in error for good:
 * reads give null and writes false.
 *
 * A decoder is changed in place by its one owner, so its functions take it by plain reference. It sets no limit on what
 * it holds: bound it by its Length. A null argument aborts. Decoders compare by address, and are not copied. */
#ifndef SIPSN_MESSAGE_STREAM_DECODER_H
#define SIPSN_MESSAGE_STREAM_DECODER_H

#include "sipsn_message.h"

PB_BEGIN_DECLS

/* ./dev lists: OBJECT( SipsnMessageStreamDecoder ), see pb_types.h */
typedef struct SipsnMessageStreamDecoder SipsnMessageStreamDecoder;

PB_API SipsnMessageStreamDecoder *sipsnMessageStreamDecoderRetain( SipsnMessageStreamDecoder *obj );
PB_API void                       sipsnMessageStreamDecoderRelease( SipsnMessageStreamDecoder *obj );
PB_API PbObj                     *sipsnMessageStreamDecoderObj( SipsnMessageStreamDecoder *obj );
PB_API SipsnMessageStreamDecoder *sipsnMessageStreamDecoderFrom( PbObj *obj );
PB_API PbSort                    *sipsnMessageStreamDecoderSort( void );
PB_API PbString                  *sipsnMessageStreamDecoderToString( SipsnMessageStreamDecoder *obj );
PB_API int64_t sipsnMessageStreamDecoderCompare( SipsnMessageStreamDecoder *a, SipsnMessageStreamDecoder *b );
PB_API bool    sipsnMessageStreamDecoderEquals( SipsnMessageStreamDecoder *a, SipsnMessageStreamDecoder *b );
/* ./dev lists: end */

PB_API SipsnMessageStreamDecoder *sipsnMessageStreamDecoderCreate( void );

/* Appends the whole buffer; its first `count` bytes; its last; `count` from an index; all but those. False, and nothing
 * taken, when the decoder is in error. A range outside of the buffer aborts. */
PB_API bool sipsnMessageStreamDecoderWrite( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer );
PB_API bool sipsnMessageStreamDecoderWriteLeading( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer,
                                                   int64_t count );
PB_API bool sipsnMessageStreamDecoderWriteTrailing( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer,
                                                    int64_t count );
PB_API bool sipsnMessageStreamDecoderWriteInner( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer, int64_t index,
                                                 int64_t count );
PB_API bool sipsnMessageStreamDecoderWriteOuter( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer, int64_t index,
                                                 int64_t count );

/* The next complete message; null when more bytes are needed, or in error. One write can complete several messages, so
 * read until null. A message always has a body here, which is empty when its Content-Length is 0. */
PB_API SipsnMessage *sipsnMessageStreamDecoderRead( SipsnMessageStreamDecoder *decoder );

PB_API bool    sipsnMessageStreamDecoderError( SipsnMessageStreamDecoder *decoder );
PB_API int64_t sipsnMessageStreamDecoderLength( SipsnMessageStreamDecoder *decoder ); /* bytes held */
PB_API int64_t
sipsnMessageStreamDecoderSpace( SipsnMessageStreamDecoder *decoder ); /* bytes that fit without more memory */

PB_END_DECLS
#endif
