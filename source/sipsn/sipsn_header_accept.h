/* SipsnHeaderAccept: the Accept header field, RFC 3261 section 20.1; a list of accept-ranges.
 *
 * Example: Accept: application/sdp;q=0.7;level=1
 *
 * Each value is kept as its text and decoded when TryDecodeAcceptAt asks for it, which gives null when it is no
 * accept-range. A header field without lines is no header. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ACCEPT_H
#define SIPSN_HEADER_ACCEPT_H

#include "sipsn_accept.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderAccept, sipsnHeaderAccept )

PB_API SipsnHeaderAccept *sipsnHeaderAcceptCreate( void );

SIPSN_DECLARE_LIST( SipsnHeaderAccept, sipsnHeaderAccept, Accepts, Accept, SipsnAccept, accept )
PB_API SipsnAccept *sipsnHeaderAcceptTryDecodeAcceptAt( SipsnHeaderAccept *hdr, int64_t index );
PB_API void         sipsnHeaderAcceptClearAccepts( SipsnHeaderAccept **hdr );

PB_END_DECLS
#endif
