/* Reads the messages in a buffer one after another, and says where and why it stops.
 *
 *     SipsnMessagePlace place = { 0 };
 *     SipsnFault        fault;
 *     SipsnMessage     *message;
 *     while( ( message = sipsnMessageTryDecodeNext( buf, SIPSN_FRAMING_STREAM, &place, &fault ) ) ) ...
 *     if( fault.kind != SIPSN_FAULT_NO_MESSAGE ) ... there is more, and it is refused
 *
 * The structs are plain: the caller provides them, and nothing in them has to be released. A null argument aborts, as
 * does a place outside of the buffer. */
#ifndef SIPSN_MESSAGE_READER_H
#define SIPSN_MESSAGE_READER_H

#include "sipsn_fault.h"
#include "sipsn_message.h"

PB_BEGIN_DECLS

/* How messages are told apart. In a datagram a message may lack Content-Length, and even the empty line; it then takes
 * all bytes that are there. On a stream it must have both. */
enum
{
    SIPSN_FRAMING_DATAGRAM = 1,
    SIPSN_FRAMING_STREAM   = 2
};

/* Where a message stands in a buffer. */
typedef struct SipsnMessagePlace
{
    SipsnPlace begin;         /* its start line */
    int64_t    length;        /* all of its bytes; when it is refused, all that are left */
    int64_t    bodyLength;    /* those of them behind the empty line */
    int64_t    contentLength; /* what its Content-Length says, -1 without */
} SipsnMessagePlace;

/* The message behind the one at *place, the first one when *place is all zeros; CR LF pairs before it are skipped.
 * *place is moved to it also when it is refused. Null when it is refused, or when no bytes are left; then *fault says
 * why.
 *
 * A datagram decodes as by sipsnMessageTryDecode, a stream as by a SipsnMessageStreamDecoder that gets all bytes at
 * once. When what follows a message does not begin a message, its Content-Length is what is at fault. */
PB_API SipsnMessage *sipsnMessageTryDecodeNext( PbBuffer *buf, int64_t framing, SipsnMessagePlace *place,
                                                SipsnFault *fault );

/* ---- Header fields in the bytes ----------------------------------------------------------------------- */

/* Where a header field stands, continuation lines included: one line of a SipsnMessageHeader. */
typedef struct SipsnFieldPlace
{
    SipsnPlace begin;  /* its name */
    int64_t    length; /* through its last line, without the line end */
} SipsnFieldPlace;

/* Moves *field to the next header field of the message at *place, to the first one when *field is all zeros. False, and
 * *field unchanged, when there are no more. The message has been decoded. */
PB_API bool sipsnMessagePlaceNextField( PbBuffer *buf, const SipsnMessagePlace *place, SipsnFieldPlace *field );

/* The canonical name of the field, as a new string. */
PB_API PbString *sipsnFieldPlaceName( PbBuffer *buf, const SipsnFieldPlace *field );

/* Sets places[ n ] to where the character at indexes[ n ] of the field's value stands, for `count` indexes in ascending
 * order. They count in the line that sipsnMessageHeaderLineAt gives, in which a space stands for a line end and the
 * blanks around it; one beyond the value gives its end. Takes as long as the value is. */
PB_API void sipsnFieldPlacesOfChars( PbBuffer *buf, const SipsnFieldPlace *field, const int64_t *indexes,
                                     SipsnPlace *places, int64_t count );

PB_END_DECLS
#endif
