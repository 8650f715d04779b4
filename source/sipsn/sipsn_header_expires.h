/* SipsnHeaderExpires: the Expires header field, RFC 3261 section 20.19; for how long something is valid.
 *
 * Example: Expires: 3600
 *
 *     Expires = 1*DIGIT
 *
 *     delta seconds   seconds, 0 or above; never absent
 *
 * The last line of the header field counts, and no line is no header. The setter replaces *hdr by a private copy when
 * it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_EXPIRES_H
#define SIPSN_HEADER_EXPIRES_H

#include "sipsn_delta_seconds.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderExpires, sipsnHeaderExpires )

PB_API SipsnHeaderExpires *sipsnHeaderExpiresCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderExpiresDeltaSeconds( SipsnHeaderExpires *hdr );
PB_API void    sipsnHeaderExpiresSetDeltaSeconds( SipsnHeaderExpires **hdr, int64_t deltaSeconds );

PB_END_DECLS
#endif
