/* SipsnHeaderTimestamp: the Timestamp header field, RFC 3261 section 20.38; when a request was sent, and how long the
 * answer took.
 *
 * Example: Timestamp: 54.5 0.5
 *
 *     Timestamp = 1*DIGIT [ "." *DIGIT ] [ LWS [ *DIGIT [ "." *DIGIT ] ] ]
 *
 *     timestamp value   the time in seconds and the optional delay, kept as written; never absent
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. The setter
 * replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_TIMESTAMP_H
#define SIPSN_HEADER_TIMESTAMP_H

#include "sipsn_header.h"
#include "sipsn_timestamp_value.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderTimestamp, sipsnHeaderTimestamp )

PB_API SipsnHeaderTimestamp *sipsnHeaderTimestampCreate( PbString *timestampValue );

PB_API PbString *sipsnHeaderTimestampTimestampValue( SipsnHeaderTimestamp *hdr );
PB_API void      sipsnHeaderTimestampSetTimestampValue( SipsnHeaderTimestamp **hdr, PbString *timestampValue );

PB_END_DECLS
#endif
