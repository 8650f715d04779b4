/* SipsnHeaderMinExpires: the Min-Expires header field, RFC 3261 section 20.23; the shortest expiry that a registrar
 * takes.
 *
 * Example: Min-Expires: 60
 *
 *     Min-Expires = 1*DIGIT
 *
 *     delta seconds   seconds, 0 or above; never absent
 *
 * The last line of the header field counts, and no line is no header. The setter replaces *hdr by a private copy when
 * it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_MIN_EXPIRES_H
#define SIPSN_HEADER_MIN_EXPIRES_H

#include "sipsn_delta_seconds.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderMinExpires, sipsnHeaderMinExpires )

PB_API SipsnHeaderMinExpires *sipsnHeaderMinExpiresCreate( int64_t deltaSeconds );

PB_API int64_t sipsnHeaderMinExpiresDeltaSeconds( SipsnHeaderMinExpires *hdr );
PB_API void    sipsnHeaderMinExpiresSetDeltaSeconds( SipsnHeaderMinExpires **hdr, int64_t deltaSeconds );

PB_END_DECLS
#endif
