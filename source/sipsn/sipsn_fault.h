/* SipsnFault: where and why the bytes of a message are refused, in words for the engineer who has to mend them.
 *
 * A fault is a plain struct that the caller provides; nothing in it has to be released. */
#ifndef SIPSN_FAULT_H
#define SIPSN_FAULT_H

#include "pb/pb_buffer.h"

PB_BEGIN_DECLS

/* A place in bytes. Offsets count bytes from 0, lines and columns count from 1. CR LF, a lone CR and a lone LF end a
 * line, and stand at the end of it. Columns count characters, of which every byte but 80 to BF begins one. */
typedef struct SipsnPlace
{
    int64_t offset;
    int64_t line;
    int64_t column;
} SipsnPlace;

/* Moves *place forward to an offset, which costs as much as there are bytes between. An offset before the place or
 * outside of the buffer aborts. */
PB_API void sipsnPlaceAdvance( SipsnPlace *place, PbBuffer *buf, int64_t offset );

typedef struct SipsnFault
{
    int64_t    kind;          /* SIPSN_FAULT_... */
    SipsnPlace place;         /* where it begins */
    int64_t    length;        /* how many bytes are at fault; 0 where something is missing */
    int64_t    contentLength; /* what Content-Length says, when that is at fault; else -1 */
    int64_t    bodyLength;    /* how many bytes there are instead; else -1 */
} SipsnFault;

enum
{
    SIPSN_FAULT_NONE       = 0,
    SIPSN_FAULT_NO_MESSAGE = 1, /* nothing but line ends, or nothing at all */

    SIPSN_FAULT_LINE_END_BEFORE_MESSAGE = 2, /* one that is not CR LF */
    SIPSN_FAULT_START_LINE              = 3, /* neither a request line nor a status line */
    SIPSN_FAULT_START_LINE_BLANK        = 4, /* one too many, or one that is not a space */
    SIPSN_FAULT_METHOD                  = 5,
    SIPSN_FAULT_URI                     = 6,
    SIPSN_FAULT_URI_BLANK               = 7, /* within it */
    SIPSN_FAULT_VERSION                 = 8,
    SIPSN_FAULT_STATUS_CODE             = 9,

    SIPSN_FAULT_UTF8 = 10, /* at the first byte that is ill-formed */

    SIPSN_FAULT_FIELD_NAME         = 11, /* at the character that a name cannot have */
    SIPSN_FAULT_FIELD_NAME_MISSING = 12, /* before the colon */
    SIPSN_FAULT_FIELD_NAME_BLANK   = 13, /* before or within it */
    SIPSN_FAULT_COLON              = 14, /* missing behind the name */
    SIPSN_FAULT_SECOND_START_LINE  = 15, /* where a header field should stand */

    SIPSN_FAULT_LINE_FEED       = 16, /* alone as a line end: the empty line does not end the header fields */
    SIPSN_FAULT_CARRIAGE_RETURN = 17, /* the same */
    SIPSN_FAULT_EMPTY_LINE      = 18, /* missing behind the header fields */

    SIPSN_FAULT_CONTENT_LENGTH         = 19, /* not a length */
    SIPSN_FAULT_CONTENT_LENGTH_MISSING = 20, /* which a stream needs */
    SIPSN_FAULT_BODY_SHORT             = 21, /* fewer bytes than Content-Length says */
    SIPSN_FAULT_BODY_LONG              = 22, /* more bytes, and they do not begin a message */
    SIPSN_FAULT_BODY_RUNS_OVER         = 23  /* the next message begins elsewhere than Content-Length says */
};

/* What is wrong and what would have been accepted, as a new string: "expected a colon after the header field name". The
 * place is not in it. A kind that does not exist aborts. */
PB_API PbString *sipsnFaultToString( const SipsnFault *fault );

PB_END_DECLS
#endif
