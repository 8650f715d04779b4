/* SipsnHeaderCallId: the Call-ID header field, RFC 3261 section 20.8; one Call-ID.
 *
 * Example: Call-Id: f81d4fae-7dec-11d0@example.com
 *
 *     callid = word [ "@" word ]
 *
 *     call id   kept as written; never absent
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. SetCallId
 * replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_CALL_ID_H
#define SIPSN_HEADER_CALL_ID_H

#include "sipsn_call_id.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderCallId, sipsnHeaderCallId )

PB_API SipsnHeaderCallId *sipsnHeaderCallIdCreate( PbString *callId );

PB_API PbString *sipsnHeaderCallIdCallId( SipsnHeaderCallId *hdr );
PB_API void      sipsnHeaderCallIdSetCallId( SipsnHeaderCallId **hdr, PbString *callId );

PB_END_DECLS
#endif
