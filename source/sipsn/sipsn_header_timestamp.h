/* SipsnHeaderTimestamp: the Timestamp header field, RFC 3261 section 20.38; when a request was sent, and how long the
 * answer took.
 *
 * Example: Timestamp: 54.5 0.5
 *
 *     Timestamp = 1*DIGIT [ "." *DIGIT ] [ LWS [ *DIGIT [ "." *DIGIT ] ] ]
 *
 *     timestamp value   the time in seconds and the optional delay, kept as written; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * The setter replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_TIMESTAMP_H
#define SIPSN_HEADER_TIMESTAMP_H

#include "sipsn_header.h"
#include "sipsn_timestamp_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderTimestamp ), see sipsn_header.h */
typedef struct SipsnHeaderTimestamp SipsnHeaderTimestamp;

PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampCreateFrom( SipsnHeaderTimestamp *source );
PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampRetain( SipsnHeaderTimestamp *obj );
PB_API void                  sipsnHeaderTimestampRelease( SipsnHeaderTimestamp *obj );
PB_API PbObj                *sipsnHeaderTimestampObj( SipsnHeaderTimestamp *obj );
PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderTimestampSort( void );
PB_API PbString             *sipsnHeaderTimestampToString( SipsnHeaderTimestamp *obj );
PB_API int64_t               sipsnHeaderTimestampCompare( SipsnHeaderTimestamp *a, SipsnHeaderTimestamp *b );
PB_API bool                  sipsnHeaderTimestampEquals( SipsnHeaderTimestamp *a, SipsnHeaderTimestamp *b );

PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderTimestampEncode( SipsnHeaderTimestamp *hdr );
PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderTimestampEncodeToMessage( SipsnHeaderTimestamp *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderTimestampPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderTimestampRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderTimestampStore( SipsnHeaderTimestamp *hdr );
PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampCreate( PbString *timestampValue );

PB_API PbString *sipsnHeaderTimestampTimestampValue( SipsnHeaderTimestamp *hdr );
PB_API void      sipsnHeaderTimestampSetTimestampValue( SipsnHeaderTimestamp **hdr, PbString *timestampValue );

PB_END_DECLS
#endif
